#include "host/app/Audition.h"

#include <QFileDialog>
#include <QLocale>
#include <QMessageBox>
#include <algorithm>
#include <utility>

#include "contract/ConverterInterface.h"
#include "converter/ConverterUnit.h"
#include "host/Failure.h"
#include "host/app/StatusText.h"
#include "host/app/Words.h"

namespace host::app {
namespace {

UInt32 monitorsSource(AudioUnit unit) {
  UInt32 value = 0;
  UInt32 size = sizeof value;
  AudioUnitGetProperty(unit, velk::kConverterProperty_MonitorSource, kAudioUnitScope_Global, 0,
                       &value, &size);
  return value;
}

void monitorSource(AudioUnit unit, UInt32 value) {
  const auto status = AudioUnitSetProperty(unit, velk::kConverterProperty_MonitorSource,
                                           kAudioUnitScope_Global, 0, &value, sizeof value);
  if (status != noErr) throw Failure("the converter refused the monitored signal");
}

void applyOptions(const AuditionOptions& options, AudioUnit unit) {
  if (options.preset) applyPreset(unit, *options.preset);
  if (options.setting) applyEncoderSetting(unit, *options.setting);
  if (options.monitorsSource) monitorSource(unit, *options.monitorsSource ? 1 : 0);
}

void copySettings(AudioUnit from, AudioUnit to) {
  applyEncoderSetting(to, encoderSettingOf(from));
  monitorSource(to, monitorsSource(from));
}

int milliseconds(std::int64_t frames, AudioFormat format) {
  return static_cast<int>(std::min<std::int64_t>(frames * 1000 / format.sampleRate, INT32_MAX));
}

std::int64_t frames(int milliseconds, AudioFormat format) {
  return std::int64_t{milliseconds} * format.sampleRate / 1000;
}

QString kiloHertz(std::uint32_t hertz) {
  return QLocale().toString(hertz / 1000.0, 'g', 6);
}

}  // namespace

Audition::Audition(const AuditionOptions& options, std::unique_ptr<AtomicFile> record,
                   std::optional<std::vector<Device>> devices)
    : options_(options),
      bundle_(viewBundlePath()),
      record_(std::move(record)),
      devices_(std::move(devices)) {
  connectWindow();
}

Audition::~Audition() = default;

void Audition::connectWindow() {
  auto& transport = window_.transport();
  connect(&window_, &MainWindow::openRequested, this, &Audition::openChosen);
  connect(&window_, &MainWindow::fileDropped, this, &Audition::openAndPlay);
  connect(&window_, &MainWindow::playRequested, this, &Audition::togglePlaying);
  connect(&window_, &MainWindow::rewindRequested, this, [this] { moveTo(0); });
  connect(&window_, &MainWindow::moveRequested, this, [this](int by) {
    if (!session_) return;
    moveTo(milliseconds(session_->player().position(), session_->format()) + by);
  });
  connect(&transport, &TransportBar::positionChosen, this, &Audition::moveTo);
  connect(transport.deviceMenu(), &QMenu::aboutToShow, this, &Audition::fillDeviceMenu);
}

void Audition::open(OpenedFile file) {
  const auto name = QString::fromStdString(file.path.filename().string());
  const auto original = file.original.sampleRate;
  const auto rate = file.source->format().sampleRate;
  setNotice(original == rate
                ? QString()
                : tr("%1 kHz, played as %2 kHz").arg(kiloHertz(original), kiloHertz(rate)));
  if (session_ && session_->suits(file)) {
    session_->load(std::move(file));
  } else {
    auto session = std::make_unique<Session>(std::move(file));
    if (session_) {
      copySettings(&session_->unit(), &session->unit());
    } else {
      applyOptions(options_, &session->unit());
    }
    // Nothing of the setting that the unit was made with is left inside.
    session->player().seek(0);
    takeSession(std::move(session));
  }
  warnedOfTruncation_ = false;
  missedFrames_ = 0;
  lateFrames_ = lateFrames(session_->unit());
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
  if (!devices_) return;
  if (isFirst) {
    startFirstDevice();
  } else {
    setDevice(device);
  }
}

void Audition::startFirstDevice() {
  // A device that the user named has to work.
  if (options_.device && !devices_->empty()) return session_->setDevice(devices_->front());
  const auto why = session_->setFirstWorkingDevice(*devices_);
  if (why.empty()) return;
  warn(why + "; playing to nobody");
  setNotice(tr("Silent: %1").arg(QString::fromStdString(why)));
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
    warn("the recording pauses: this file has another sample rate or channel count");
  }
}

void Audition::finish() {
  if (session_) session_->stop();
  if (recorder_) recorder_->finish();
  recorder_.reset();
}

void Audition::openChosen() {
  auto* const dialog = new QFileDialog(
      &window_, tr("Open Sound File"), {},
      tr("Sound files (*.wav *.wave *.aif *.aiff *.aifc *.flac *.ogg *.oga *.opus *.mp3 *.w64 "
         "*.rf64 *.caf *.au);;All files (*)"));
  dialog->setAttribute(Qt::WA_DeleteOnClose);
  dialog->setFileMode(QFileDialog::ExistingFile);
  connect(dialog, &QFileDialog::fileSelected, this, &Audition::openAndPlay);
  dialog->open();
}

void Audition::openAndPlay(const QString& path) {
  // A new view would end the test without a word.
  if (session_ && listeningTestRuns(&session_->unit())) return;
  try {
    open(openedForPlaying(path.toStdString(), options_.channels));
    session_->player().play();
  } catch (const Failure& failure) {
    auto* const message =
        new QMessageBox(QMessageBox::Warning, tr("AAC Audition"),
                        QString::fromStdString(failure.what()), QMessageBox::Ok, &window_);
    message->setAttribute(Qt::WA_DeleteOnClose);
    message->open();
  }
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

void Audition::moveTo(int milliseconds) {
  if (!session_) return;
  session_->player().seek(frames(std::max(milliseconds, 0), session_->format()));
  refresh();
}

void Audition::setDevice(const std::optional<Device>& device) {
  if (!session_) return;
  try {
    session_->setDevice(device);
  } catch (const Failure& failure) {
    warn(failure.what());
    setNotice(tr("Silent: %1").arg(QString::fromStdString(failure.what())));
  }
  refresh();
}

void Audition::fillDeviceMenu() {
  auto* const menu = window_.transport().deviceMenu();
  menu->clear();
  const auto current = session_ ? session_->device() : std::nullopt;
  const auto add = [&](const QString& name, const std::optional<Device>& device) {
    auto* const action = menu->addAction(name, this, [this, device] {
      setNotice({});
      setDevice(device);
    });
    action->setCheckable(true);
    action->setChecked(device ? current && current->name == device->name : !current);
    action->setEnabled(session_ != nullptr);
  };
  add(tr("No Device (silent)"), std::nullopt);
  menu->addSeparator();
  auto devices = outputDevices();
  // A device that plays may hide from those who look for one.
  if (current && !deviceNamed(devices, current->name)) devices.push_back(*current);
  for (const auto& device : devices) add(QString::fromStdString(device.name), device);
}

void Audition::refresh() {
  if (!session_) return;
  refreshOutput();
  refreshTransport();
  warnOfTruncation();
  const bool test = listeningTestRuns(&session_->unit());
  window_.setOpenEnabled(!test);
  window_.status().setEncoderText(encoderText(session_->unit(), session_->format().sampleRate));
}

void Audition::refreshTransport() {
  auto& player = session_->player();
  auto& transport = window_.transport();
  auto* const output = session_->output();
  const auto latency = output != nullptr ? output->latency() : 0;
  transport.setPlaying(player.isPlaying());
  transport.setLength(milliseconds(player.length(), session_->format()));
  transport.setPosition(milliseconds(player.audiblePosition(latency), session_->format()));
  transport.setDeviceName(output == nullptr || output->isSilent()
                              ? tr("No device")
                              : QString::fromStdString(output->name()));
}

void Audition::refreshOutput() {
  const auto why = session_->checkOutput();
  if (!why.empty()) {
    warn("the device " + why + "; playing to nobody");
    setNotice(tr("Silent: the device %1").arg(QString::fromStdString(why)));
  }
  // Silence would give the encoded signal of a listening test away, a word of it even more.
  if (listeningTestRuns(&session_->unit())) return;
  const auto missed = session_->player().missedFrames();
  const auto late = lateFrames(session_->unit());
  if (why.empty() && missed != missedFrames_) {
    setNotice(tr("The file cannot be read fast enough"));
  } else if (why.empty() && late != lateFrames_) {
    setNotice(tr("The encoder cannot keep up"));
  }
  missedFrames_ = missed;
  lateFrames_ = late;
}

void Audition::warnOfTruncation() {
  if (warnedOfTruncation_ || !session_->fileIsTruncated()) return;
  warnedOfTruncation_ = true;
  warn("the file '" + session_->path().string() +
       "' is damaged or cut off: it holds less than it promises; what is there is played");
  setNotice(tr("The file is damaged or cut off"));
}

void Audition::setNotice(const QString& notice) {
  window_.status().setNotice(notice);
}

}  // namespace host::app
