#pragma once

#include <QObject>
#include <memory>

#include "host/analysis/Analysis.h"
#include "host/playback/Session.h"
#include "programs/audition/TransportBar.h"

namespace host::audition {

/// Keeps the waveform in the window up to date with the file, its analysis and what plays.
class OverviewControl : public QObject {
 public:
  explicit OverviewControl(TransportBar& transport);
  ~OverviewControl() override;

  /// Shows another file. Without `analyses` nothing of it is read in the background.
  void setFile(Session& session, bool analyses);
  /// `position` is what is heard now.
  void refresh(Session& session, std::int64_t position, Analysis::Clock::time_point now);
  /// What plays is about to jump.
  void leavePosition(Session& session);
  /// Whether the analysis does something, or would if a listening test did not run.
  bool isBusy() const;

 private:
  void follow(Session& session);

  TransportBar& transport_;
  std::unique_ptr<Analysis> analysis_;
};

}  // namespace host::audition
