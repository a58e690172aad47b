#pragma once

#include <QObject>
#include <QString>
#include <memory>

#include "host/files/AtomicFile.h"
#include "host/playback/Recorder.h"
#include "host/playback/Session.h"
#include "host/unit/ViewBundle.h"
#include "programs/audition/CommandLine.h"
#include "programs/audition/SavedSession.h"
#include "programs/audition/window/DeviceMenu.h"
#include "programs/audition/window/FileOpening.h"
#include "programs/audition/window/LoopControl.h"
#include "programs/audition/window/MainWindow.h"
#include "programs/audition/window/OverviewControl.h"
#include "programs/audition/window/PassingNotice.h"

namespace host::audition {

/// The window and the session that plays in it.
class Audition : public QObject {
  Q_OBJECT

 public:
  /// `record` may be null. With a list of devices, the first that works plays, or else a silent
  /// clock; without a list the caller renders. Throws `Failure` when the view's bundle cannot be
  /// loaded.
  Audition(const AuditionOptions& options, std::unique_ptr<AtomicFile> record,
           std::optional<std::vector<Device>> devices, OpenDevice open = openDevice);
  ~Audition() override;

  MainWindow& window() { return window_; }
  /// Null before the first file.
  Session* session() { return session_.get(); }
  /// Null when not recording.
  Recorder* recorder() { return recorder_.get(); }

  /// Shows the file in place of the current one, ready to play from its beginning. The first file
  /// gets the encoder setting and monitored signal of the command line; later ones keep the current
  /// ones. Throws `Failure`; the current file then stays.
  void open(OpenedFile file);
  /// Opens a file as if the user had chosen it, and plays it. Errors are shown in the window.
  void openAndPlay(const QString& path) { opening_.open(path); }
  /// Sets whether files opened from now on are analysed in the background.
  void setAnalysing(bool analysing) { analysing_ = analysing; }
  bool isAnalysing() const { return overview_.isBusy(); }
  /// Where the list of recent files is kept. Not owned.
  void setSettings(QSettings* settings) { opening_.setSettings(settings); }
  /// What to restore next time; nothing if no file is open.
  std::optional<SavedSession> sessionToSave();
  /// Opens the saved session's file at the saved position. Throws `Failure`.
  void restore(const SavedSession& saved);
  /// Plays to this device from now on, or silently. Errors are shown in the window.
  void setDevice(const std::optional<Device>& device);
  /// Updates the window from the session. Call it regularly.
  void refresh();
  /// Stops playing and completes the recording. Throws `Failure` when the recording is not whole.
  void finish();

 private:
  void connectWindow();
  void startFirstDevice();
  void takeSession(std::unique_ptr<Session> session);
  void recordFrom(Session& session);
  void takeAndPlay(OpenedFile file);
  void togglePlaying();
  void moveTo(std::int64_t frame);
  void changeLoop(const std::function<void()>& change);
  std::int64_t heardPosition();
  void refreshTransport();
  void refreshOutput();
  void warnOfTruncation();
  void warnOfRecording();
  /// Says in the window which sample rates are converted, if any.
  void showRateNotice();
  void setNotice(const QString& notice);
  void showNotice();

  const AuditionOptions options_;
  ViewBundle bundle_;
  std::unique_ptr<AtomicFile> record_;
  const std::optional<std::vector<Device>> devices_;
  const OpenDevice openDevice_;
  /// The name of the device that the user chose in an earlier session.
  std::string chosenDevice_;
  std::unique_ptr<Recorder> recorder_;
  AudioFormat recordedFormat_;
  std::unique_ptr<Session> session_;
  bool warnedOfTruncation_ = false;
  bool warnedOfRecording_ = false;
  std::uint64_t missedFrames_ = 0;
  std::uint64_t lateFrames_ = 0;
  /// Whether a listening test was running when the output was last looked at.
  bool testRan_ = false;
  QString notice_;
  PassingNotice passing_;
  LoopControl loop_;
  bool analysing_ = false;
  /// Destroyed before session_: its view uses the session's unit.
  MainWindow window_;
  FileOpening opening_;
  OverviewControl overview_;
  DeviceMenu deviceMenu_;
};

}  // namespace host::audition
