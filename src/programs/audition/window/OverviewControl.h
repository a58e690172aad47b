#pragma once

#include <QObject>
#include <memory>

#include "host/analysis/Analysis.h"
#include "host/playback/Session.h"
#include "programs/audition/window/TransportBar.h"

namespace host::audition {

/// Updates the waveform in the window from the file, its analysis and the player.
class OverviewControl : public QObject {
 public:
  explicit OverviewControl(TransportBar& transport);
  ~OverviewControl() override;

  /// Shows another file. Without `analyses` it is not read in the background.
  void setFile(Session& session, bool analyses);
  /// `position` is the frame that is heard now.
  void refresh(Session& session, std::int64_t position, Analysis::Clock::time_point now);
  /// Takes note of what was played so far. Call it before the position jumps.
  void leavePosition(Session& session);
  /// Whether the analysis is running, or paused by a listening test.
  bool isBusy() const;

 private:
  void follow(Session& session);

  TransportBar& transport_;
  std::unique_ptr<Analysis> analysis_;
};

}  // namespace host::audition
