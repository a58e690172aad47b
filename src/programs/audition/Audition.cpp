#include "programs/audition/Audition.h"

#include <QLocale>
#include <QStringList>
#include <algorithm>
#include <utility>

#include "contract/ConverterInterface.h"
#include "converter/unit/ConverterUnit.h"
#include "host/messages/Failure.h"
#include "programs/audition/ProgramTerminal.h"
#include "programs/audition/window/Languages.h"
#include "programs/audition/window/StatusText.h"

namespace host::audition {
namespace {

void monitorSource(AudioUnit unit, UInt32 value) {
  const auto status = writeProperty(unit, velk::kConverterProperty_MonitorSource, value);
  if (status != noErr) throw Failure(Message::words("the converter refused the monitored signal"));
}

void applyOptions(const AuditionOptions& options, AudioUnit unit) {
  if (options.preset) applyPreset(unit, *options.preset);
  if (options.setting) applyEncoderSetting(unit, *options.setting);
  if (options.monitorsSource) monitorSource(unit, *options.monitorsSource ? 1 : 0);
}

void copySettings(AudioUnit from, AudioUnit to) {
  applyEncoderSetting(to, encoderSettingOf(from));
  monitorSource(to, readProperty(from, velk::kConverterProperty_MonitorSource).valueOr(0));
}

QString kiloHertz(std::uint32_t hertz) {
  return QLocale().toString(hertz / 1000.0, 'g', 6);
}

}  // namespace

Audition::Audition(const AuditionOptions& options, std::unique_ptr<AtomicFile> record,
                   std::optional<std::vector<Device>> devices, OpenDevice open)
    : options_(options),
      bundle_(viewBundlePath()),
      record_(std::move(record)),
      devices_(std::move(devices)),
      openDevice_(std::move(open)),
      opening_(window_, options.channels,
               [this](OpenedFile file) { takeAndPlay(std::move(file)); }),
      overview_(window_.transport()),
      deviceMenu_(window_.transport().deviceMenu()) {
  connectWindow();
}

Audition::~Audition() = default;

void Audition::connectWindow() {
  auto& waveform = window_.transport().waveform();
  connect(&window_, &MainWindow::playRequested, this, &Audition::togglePlaying);
  connect(&window_, &MainWindow::rewindRequested, this, [this] { moveTo(0); });
  connect(&window_, &MainWindow::moveRequested, this, [this](int milliseconds) {
    if (!session_) return;
    const auto by = std::int64_t{milliseconds} * session_->format().sampleRate / 1000;
    moveTo(heardPosition() + by);
  });
  connect(&waveform, &WaveformView::positionChosen, this, &Audition::moveTo);
  connect(&waveform, &WaveformView::loopChosen, this, [this](qint64 start, qint64 end) {
    const LoopRange loop = {start, end};
    changeLoop([&] { loop_.choose(loop.length() > 0 ? std::optional(loop) : std::nullopt); });
  });
  connect(&window_, &MainWindow::loopToggled, this,
          [this] { changeLoop([this] { loop_.toggle(); }); });
  connect(&window_, &MainWindow::loopRemoved, this,
          [this] { changeLoop([this] { loop_.choose(std::nullopt); }); });
  connect(&window_, &MainWindow::loopStartRequested, this,
          [this] { changeLoop([this] { loop_.setStart(heardPosition()); }); });
  connect(&window_, &MainWindow::loopEndRequested, this,
          [this] { changeLoop([this] { loop_.setEnd(heardPosition()); }); });
  connect(&deviceMenu_, &DeviceMenu::chosen, this, &Audition::setDevice);
}

void Audition::open(OpenedFile file) {
  const auto name = QString::fromStdString(file.path.filename().string());
  if (session_ && session_->canLoad(file)) {
    loop_.setPlayer(nullptr);
    session_->load(std::move(file));
    showRateNotice();
  } else {
    auto session = std::make_unique<Session>(std::move(file), openDevice_);
    if (session_) {
      copySettings(&session_->unit(), &session->unit());
    } else {
      applyOptions(options_, &session->unit());
    }
    // Discards what was encoded with the setting that the unit was made with.
    session->player().seek(0);
    takeSession(std::move(session));
  }
  warnedOfTruncation_ = false;
  missedFrames_ = 0;
  lateFrames_ = lateFrames(session_->unit());
  loop_.setPlayer(&session_->player());
  overview_.setFile(*session_, analysing_);
  window_.transport().setFileName(name);
  window_.setWindowTitle(tr("%1 – AAC Audition").arg(name));
  window_.setTransportEnabled(true);
  refresh();
}

void Audition::takeSession(std::unique_ptr<Session> session) {
  window_.setView(bundle_.viewForUnit(&session->unit()));
  const bool isFirst = session_ == nullptr;
  const auto device = isFirst ? std::nullopt : session_->device();
  session_ = std::move(session);
  recordFrom(*session_);
  showRateNotice();
  if (!devices_) return;
  if (isFirst) {
    startFirstDevice();
  } else {
    setDevice(device);
  }
}

void Audition::startFirstDevice() {
  // A device named on the command line has to work.
  if (options_.device && !devices_->empty()) {
    session_->setDevice(devices_->front());
    return showRateNotice();
  }
  const auto why = session_->setFirstWorkingDevice(
      inOrderOfPreference(*devices_, session_->format().sampleRate, chosenDevice_));
  showRateNotice();
  if (why.empty()) return;
  terminal().warn(why.english() + "; playing to nobody");
  setNotice(tr("Silent: %1").arg(inUsersLanguage(why)));
}

void Audition::recordFrom(Session& session) {
  if (record_) {
    recordedFormat_ = session.format();
    recorder_ = std::make_unique<Recorder>(std::move(record_), recordedFormat_);
  }
  if (!recorder_) return;
  if (recordedFormat_ == session.format()) {
    session.setTap(recorder_.get());
  } else {
    terminal().warn("the recording pauses: this file has another sample rate or channel count");
  }
}

void Audition::finish() {
  if (session_) session_->stop();
  if (recorder_) recorder_->finish();
  recorder_.reset();
}

void Audition::takeAndPlay(OpenedFile file) {
  open(std::move(file));
  session_->player().play();
  refresh();
}

void Audition::togglePlaying() {
  if (!session_) return;
  auto& player = session_->player();
  if (player.isPlaying()) {
    player.pause();
  } else {
    player.play();
  }
  refresh();
}

void Audition::moveTo(std::int64_t frame) {
  if (!session_) return;
  overview_.leavePosition(*session_);
  session_->player().seek(frame);
  refresh();
}

void Audition::changeLoop(const std::function<void()>& change) {
  if (!session_) return;
  overview_.leavePosition(*session_);
  change();
  refresh();
}

std::int64_t Audition::heardPosition() {
  const auto* const output = session_->output();
  return session_->player().audiblePosition(output != nullptr ? output->latency() : 0);
}

void Audition::setDevice(const std::optional<Device>& device) {
  if (!session_) return;
  try {
    session_->setDevice(device);
    showRateNotice();
  } catch (const Failure& failure) {
    terminal().warn(failure.what());
    setNotice(tr("Silent: %1").arg(inUsersLanguage(failure.message())));
  }
  refresh();
}

void Audition::refresh() {
  deviceMenu_.setCurrent(session_ ? session_->device() : std::nullopt, session_ != nullptr);
  if (!session_) return;
  refreshOutput();
  refreshTransport();
  warnOfTruncation();
  warnOfRecording();
  const bool test = listeningTestRuns(&session_->unit());
  window_.setOpenEnabled(!test);
  opening_.setEnabled(!test);
  window_.status().setEncoderText(encoderText(session_->unit(), session_->format().sampleRate));
}

void Audition::refreshTransport() {
  auto& player = session_->player();
  auto& transport = window_.transport();
  const auto* const output = session_->output();
  const auto rate = session_->format().sampleRate;
  const auto position = heardPosition();
  transport.setPlaying(player.isPlaying());
  transport.showTime(position, player.length(), rate);
  transport.setLoop(loop_.loop(), loop_.isOn(), rate);
  transport.waveform().setLoop(loop_.loop(), loop_.isOn());
  window_.setLoop(loop_.loop().has_value(), loop_.isOn());
  overview_.refresh(*session_, position, Analysis::Clock::now());
  transport.setDeviceName(output == nullptr || output->isSilent()
                              ? tr("No device")
                              : QString::fromStdString(output->name()));
}

void Audition::refreshOutput() {
  const auto why = session_->checkOutput();
  if (!why.empty()) {
    terminal().warn(why.english() + "; playing to nobody");
    setNotice(tr("Silent: %1").arg(inUsersLanguage(why)));
  }
  // During a listening test a notice would tell which signal is the encoded one.
  if (listeningTestRuns(&session_->unit())) {
    testRan_ = true;
    return;
  }
  const auto missed = session_->player().missedFrames();
  const auto late = lateFrames(session_->unit());
  const auto now = PassingNotice::Clock::now();
  if (why.empty() && missed != missedFrames_) {
    passing_.tell(tr("The file cannot be read fast enough"), now);
  } else if (testRan_ && late != lateFrames_) {
    setNotice(tr("%1 samples were missing during the test: do not trust its result")
                  .arg(QLocale().toString(static_cast<qulonglong>(late - lateFrames_))));
  } else if (why.empty() && late != lateFrames_) {
    passing_.tell(tr("The encoder cannot keep up"), now);
  }
  missedFrames_ = missed;
  lateFrames_ = late;
  testRan_ = false;
  showNotice();
}

void Audition::warnOfTruncation() {
  if (warnedOfTruncation_ || !session_->fileIsTruncated()) return;
  warnedOfTruncation_ = true;
  terminal().warn(
      "the file '" + session_->path().string() +
      "' is damaged or cut off: it holds less than it promises; what is there is played");
  setNotice(tr("The file is damaged or cut off"));
}

void Audition::warnOfRecording() {
  // Playing goes on; the error itself is reported when the recording ends.
  if (warnedOfRecording_ || !recorder_ || recorder_->failure().empty()) return;
  warnedOfRecording_ = true;
  setNotice(tr("The recording has failed"));
}

void Audition::showRateNotice() {
  const auto original = session_->originalFormat().sampleRate;
  const auto rate = session_->format().sampleRate;
  const auto* const output = session_->output();
  QStringList parts;
  if (original != rate) {
    parts << tr("%1 kHz, played as %2 kHz").arg(kiloHertz(original), kiloHertz(rate));
  }
  if (output != nullptr && output->sampleRate() != rate) {
    parts << tr("Converted to the device's %1 kHz").arg(kiloHertz(output->sampleRate()));
  }
  setNotice(parts.join(QStringLiteral("  ·  ")));
}

void Audition::setNotice(const QString& notice) {
  notice_ = notice;
  showNotice();
}

void Audition::showNotice() {
  const auto passing = passing_.shownAt(PassingNotice::Clock::now());
  window_.status().setNotice(passing.isEmpty() ? notice_ : passing);
}

}  // namespace host::audition
