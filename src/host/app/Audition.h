#pragma once

#include <QObject>
#include <QString>
#include <memory>

#include "host/AtomicFile.h"
#include "host/CommandLine.h"
#include "host/Recorder.h"
#include "host/Session.h"
#include "host/ViewBundle.h"
#include "host/app/MainWindow.h"

namespace host::app {

/// The window and what plays in it.
class Audition : public QObject {
 public:
  /// `record` may be null. Without a list of devices nothing renders by itself; with one, the first
  /// that works plays, or nobody. Throws `Failure` when the view's bundle cannot be loaded.
  Audition(const AuditionOptions& options, std::unique_ptr<AtomicFile> record,
           std::optional<std::vector<Device>> devices);
  ~Audition() override;

  MainWindow& window() { return window_; }
  /// Null before the first file.
  Session* session() { return session_.get(); }
  /// Null while nothing is recorded.
  Recorder* recorder() { return recorder_.get(); }

  /// Shows the file in place of the earlier one, ready at its beginning. Encoder setting and
  /// monitored signal are those of the command line at first and stay what they are afterwards.
  /// Throws `Failure`; the earlier file then stays.
  void open(OpenedFile file);
  /// Plays to this device from now on, or to nobody.
  void setDevice(const std::optional<Device>& device);
  /// Brings the window up to date with what plays.
  void refresh();
  /// Stops playing and completes the recording. Throws `Failure`.
  void finish();

 private:
  void connectWindow();
  void startFirstDevice();
  void takeSession(std::unique_ptr<Session> session);
  void recordFrom(Session& session);
  void openChosen();
  void openAndPlay(const QString& path);
  void togglePlaying();
  void moveTo(int milliseconds);
  void fillDeviceMenu();
  void refreshTransport();
  void refreshOutput();
  void warnOfTruncation();
  void setNotice(const QString& notice);

  const AuditionOptions options_;
  ViewBundle bundle_;
  std::unique_ptr<AtomicFile> record_;
  const std::optional<std::vector<Device>> devices_;
  std::unique_ptr<Recorder> recorder_;
  AudioFormat recordedFormat_;
  std::unique_ptr<Session> session_;
  bool warnedOfTruncation_ = false;
  std::uint64_t missedFrames_ = 0;
  std::uint64_t lateFrames_ = 0;
  /// Goes before the session, to whose unit its view is bound.
  MainWindow window_;
};

}  // namespace host::app
