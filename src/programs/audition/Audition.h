#pragma once

#include <QObject>
#include <QString>
#include <memory>

#include "host/files/AtomicFile.h"
#include "host/playback/Recorder.h"
#include "host/playback/Session.h"
#include "host/unit/ViewBundle.h"
#include "programs/audition/CommandLine.h"
#include "programs/audition/DeviceMenu.h"
#include "programs/audition/FileOpening.h"
#include "programs/audition/LoopControl.h"
#include "programs/audition/MainWindow.h"
#include "programs/audition/OverviewControl.h"
#include "programs/audition/SavedSession.h"

namespace host::audition {

/// The window and what plays in it.
class Audition : public QObject {
  Q_OBJECT

 public:
  /// `record` may be null. Without a list of devices nothing renders by itself; with one, the first
  /// that works plays, or nobody. Throws `Failure` when the view's bundle cannot be loaded.
  Audition(const AuditionOptions& options, std::unique_ptr<AtomicFile> record,
           std::optional<std::vector<Device>> devices, OpenDevice open = openDevice);
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
  /// Opens a file as if the user had chosen it, and plays it: what is wrong with it is said in the
  /// window.
  void openAndPlay(const QString& path) { opening_.open(path); }
  /// Whether files opened from now on are analysed in the background.
  void setAnalysing(bool analysing) { analysing_ = analysing; }
  bool isAnalysing() const { return overview_.isBusy(); }
  /// Where the files opened last are kept. Not owned.
  void setSettings(QSettings* settings) { opening_.setSettings(settings); }
  /// What is to be found again, if a file is open.
  std::optional<SavedSession> sessionToSave();
  /// Opens the session's file where it was left. Throws `Failure`.
  void restore(const SavedSession& saved);
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
  void takeAndPlay(OpenedFile file);
  void togglePlaying();
  void moveTo(std::int64_t frame);
  void changeLoop(const std::function<void()>& change);
  std::int64_t heardPosition();
  void refreshTransport();
  void refreshOutput();
  void warnOfTruncation();
  void warnOfRecording();
  /// Says which sample rates were converted, if any.
  void noticeRates();
  void setNotice(const QString& notice);

  const AuditionOptions options_;
  ViewBundle bundle_;
  std::unique_ptr<AtomicFile> record_;
  const std::optional<std::vector<Device>> devices_;
  const OpenDevice openDevice_;
  /// The name of the one that the user chose in an earlier session.
  std::string chosenDevice_;
  std::unique_ptr<Recorder> recorder_;
  AudioFormat recordedFormat_;
  std::unique_ptr<Session> session_;
  bool warnedOfTruncation_ = false;
  bool warnedOfRecording_ = false;
  std::uint64_t missedFrames_ = 0;
  std::uint64_t lateFrames_ = 0;
  LoopControl loop_;
  bool analysing_ = false;
  /// Goes before the session, to whose unit its view is bound.
  MainWindow window_;
  FileOpening opening_;
  OverviewControl overview_;
  DeviceMenu deviceMenu_;
};

}  // namespace host::audition
