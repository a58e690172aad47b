#include <gmock/gmock.h>
#include <sys/resource.h>

#include <QAbstractButton>
#include <QApplication>
#include <QLabel>
#include <QRegularExpression>
#include <array>
#include <csignal>
#include <thread>
#include <vector>

#include "FakeDevices.h"
#include "Sound.h"
#include "contract/ConverterInterface.h"
#include "converter/unit/ConverterUnit.h"
#include "host/messages/Failure.h"
#include "host/unit/EncoderSetting.h"
#include "host/unit/Readings.h"
#include "programs/audition/Audition.h"
#include "ui/TemporaryFolder.h"

using host::audition::Audition;

namespace {

/// During its lifetime files cannot grow beyond that many bytes, as on a full disk.
class SmallFiles {
 public:
  explicit SmallFiles(rlim_t bytes) : signals_(std::signal(SIGXFSZ, SIG_IGN)) {
    ::getrlimit(RLIMIT_FSIZE, &earlier_);
    const rlimit few = {bytes, earlier_.rlim_max};
    ::setrlimit(RLIMIT_FSIZE, &few);
  }
  SmallFiles(const SmallFiles&) = delete;
  SmallFiles& operator=(const SmallFiles&) = delete;
  ~SmallFiles() {
    ::setrlimit(RLIMIT_FSIZE, &earlier_);
    std::signal(SIGXFSZ, signals_);
  }

 private:
  rlimit earlier_{};
  void (*signals_)(int);
};

/// The window around the real view. Audio is rendered only when a test asks for it.
class Auditioning : public testing::Test {
 protected:
  Auditioning() {
    write("stereo.wav", noise(48000, 2, 48000));
    write("other.wav", noise(48000, 2, 24000, 0.25F));
    write("mono.wav", noise(48000, 1, 48000));
  }
  void write(const std::string& name, const Sound& sound) { writeSound(folder_ / name, sound); }
  std::filesystem::path path(const std::string& name) const { return folder_ / name; }

  Audition& start(const host::AuditionOptions& options = {},
                  std::unique_ptr<host::AtomicFile> record = nullptr) {
    audition_ = std::make_unique<Audition>(options, std::move(record), std::nullopt);
    audition_->window().show();
    return *audition_;
  }
  void startWith(const std::vector<host::Device>& devices) {
    audition_ =
        std::make_unique<Audition>(host::AuditionOptions(), nullptr, devices, devices_.open());
    audition_->window().show();
  }
  void open(const std::string& name) {
    audition_->open(host::openForPlaying(path(name)));
    QCoreApplication::processEvents();
  }
  /// Plays to the end of the file, as fast as possible.
  void playToTheEnd() {
    std::vector<float> samples(2 * 1024);
    const std::array<float*, 2> planes = {samples.data(), samples.data() + 1024};
    auto& player = audition_->session()->player();
    player.setOffline(true);
    player.play();
    while (!player.isFinished()) player.renderBlock(planes.data(), 1024);
  }
  converter::ConverterUnit& unit() { return audition_->session()->unit(); }
  host::Readings readings() { return host::readingsOf(unit(), audition_->session()->format()); }
  void setProperty(AudioUnitPropertyID id, UInt32 value) {
    ASSERT_EQ(unit().setProperty(id, kAudioUnitScope_Global, 0, &value, sizeof value), noErr);
  }
  /// The visible button with that text.
  QAbstractButton* button(const QString& text) {
    for (auto* const each : audition_->window().findChildren<QAbstractButton*>()) {
      if (each->isVisible() && each->text() == text) return each;
    }
    return nullptr;
  }
  bool shows(const QString& text) {
    for (const auto* const each : audition_->window().findChildren<QLabel*>()) {
      if (each->isVisible() && each->text().contains(text)) return true;
    }
    return false;
  }

  TemporaryFolder folder_;
  FakeDevices devices_;
  std::unique_ptr<Audition> audition_;
};

TEST_F(Auditioning, ShowsTheFileAndItsView) {
  auto& audition = start();
  EXPECT_EQ(button("Encoded"), nullptr);
  open("stereo.wav");
  EXPECT_TRUE(audition.window().windowTitle().contains("stereo.wav"));
  EXPECT_TRUE(shows("stereo.wav"));
  EXPECT_NE(button("Encoded"), nullptr);
  EXPECT_EQ(audition.window().width(), 560);
}

TEST_F(Auditioning, GrowsAndShrinksWithTheView) {
  auto& audition = start();
  open("stereo.wav");
  const int low = audition.window().height();
  auto* const details = audition.window().findChild<QAbstractButton*>("showDetailsButton");
  ASSERT_NE(details, nullptr);
  details->click();
  QCoreApplication::processEvents();
  EXPECT_EQ(audition.window().height(), low + 369 - 195);
  details->click();
  QCoreApplication::processEvents();
  EXPECT_EQ(audition.window().height(), low);
}

TEST_F(Auditioning, StartsWithTheSettingOfTheCommandLine) {
  host::AuditionOptions options;
  options.setting = host::EncoderSetting{1, 0, 7};
  options.monitorsSource = true;
  start(options);
  open("stereo.wav");
  EXPECT_EQ(host::encoderSettingOf(&unit()), (host::EncoderSetting{1, 0, 7}));
  EXPECT_TRUE(readings().monitorsSource);
}

TEST_F(Auditioning, KeepsUnitAndViewForAFileOfTheSameFormat) {
  start();
  open("stereo.wav");
  const auto* const before = &unit();
  const auto* const view = button("Encoded");
  open("other.wav");
  EXPECT_EQ(&unit(), before);
  EXPECT_EQ(button("Encoded"), view);
  EXPECT_EQ(audition_->session()->player().length(), 24000);
}

TEST_F(Auditioning, KeepsSettingAndMonitorForAFileOfAnotherFormat) {
  start();
  open("stereo.wav");
  host::applyEncoderSetting(&unit(), {0, 0, 12});
  setProperty(velk::kConverterProperty_MonitorSource, 1);
  open("mono.wav");
  EXPECT_EQ(audition_->session()->format(), (host::AudioFormat{48000, 1}));
  EXPECT_EQ(host::encoderSettingOf(&unit()), (host::EncoderSetting{0, 0, 12}));
  EXPECT_TRUE(readings().monitorsSource);
  EXPECT_NE(button("Encoded"), nullptr);
}

TEST_F(Auditioning, ForgetsTheReadingsOfTheFileBefore) {
  start();
  open("stereo.wav");
  playToTheEnd();
  EXPECT_NEAR(readings().source[0].samplePeakDbfs, -6.02, 0.01);
  open("other.wav");
  playToTheEnd();
  EXPECT_NEAR(readings().source[0].samplePeakDbfs, -12.04, 0.01);
}

TEST_F(Auditioning, KeepsTheFileWhenAnotherCannotBePlayed) {
  start();
  open("stereo.wav");
  const auto* const before = &unit();
  EXPECT_THROW(open("missing.wav"), host::Failure);
  EXPECT_EQ(&unit(), before);
  EXPECT_EQ(audition_->session()->path(), path("stereo.wav"));
}

TEST_F(Auditioning, TellsThatTheSampleRateWasConverted) {
  write("fast.wav", noise(384000, 2, 38400));
  start();
  open("fast.wav");
  EXPECT_TRUE(shows("384 kHz, played as 192 kHz"));
  open("stereo.wav");
  EXPECT_FALSE(shows("played as"));
}

TEST_F(Auditioning, TellsThatTheDeviceHasAnotherSampleRate) {
  startWith({FakeDevices::device("Server", {44100})});
  open("stereo.wav");
  EXPECT_TRUE(shows("Converted to the device's 44.1 kHz"));
  EXPECT_NE(button("Server"), nullptr);
  audition_->setDevice(FakeDevices::device("Card", {44100, 48000}));
  EXPECT_FALSE(shows("Converted"));
  EXPECT_NE(button("Card"), nullptr);
  audition_->setDevice(FakeDevices::device("Server", {44100}));
  EXPECT_TRUE(shows("Converted to the device's 44.1 kHz"));
  audition_->setDevice(std::nullopt);
  EXPECT_FALSE(shows("Converted"));
}

TEST_F(Auditioning, TellsOfBothConversions) {
  write("fast.wav", noise(384000, 2, 38400));
  startWith({FakeDevices::device("Server", {48000})});
  open("fast.wav");
  EXPECT_TRUE(shows("384 kHz, played as 192 kHz"));
  EXPECT_TRUE(shows("Converted to the device's 48 kHz"));
  open("stereo.wav");
  EXPECT_FALSE(shows("played as"));
  EXPECT_FALSE(shows("Converted"));
}

TEST_F(Auditioning, PrefersADeviceThatDoesTheRate) {
  startWith({FakeDevices::device("Server", {44100}), FakeDevices::device("Card", {48000})});
  open("stereo.wav");
  EXPECT_NE(button("Card"), nullptr);
}

TEST_F(Auditioning, RestoresTheDeviceOfTheLastSessionWhateverItsRate) {
  startWith({FakeDevices::device("Card", {48000}), FakeDevices::device("Server", {44100})});
  host::audition::SavedSession saved;
  saved.file = path("stereo.wav").string();
  saved.device = "Server";
  audition_->restore(saved);
  EXPECT_NE(button("Server"), nullptr);
}

TEST_F(Auditioning, SaysThatADeviceCannotBeOpened) {
  startWith({FakeDevices::device("Broken", {44100})});
  open("stereo.wav");
  EXPECT_TRUE(shows("Silent: 'Broken' is broken"));
}

TEST_F(Auditioning, GivesNothingAwayAndOpensNothingWhileAListeningTestRuns) {
  auto& audition = start();
  open("stereo.wav");
  playToTheEnd();
  audition.refresh();
  EXPECT_TRUE(shows("kbit/s"));
  setProperty(velk::kConverterProperty_ListeningTestActive, 1);
  audition.refresh();
  EXPECT_FALSE(shows("kbit/s"));
  EXPECT_FALSE(button("Open…")->isEnabled());
  setProperty(velk::kConverterProperty_ListeningTestActive, 0);
  audition.refresh();
  EXPECT_TRUE(shows("kbit/s"));
  EXPECT_TRUE(button("Open…")->isEnabled());
}

TEST_F(Auditioning, LooksTheSameOutsideTheViewWhicheverSignalIsMonitored) {
  auto& audition = start();
  open("stereo.wav");
  playToTheEnd();
  audition.refresh();
  QCoreApplication::processEvents();
  const auto transport = [&] { return audition.window().transport().grab().toImage(); };
  // Without the bit rate, because the encoder's thread may still be at work.
  const auto status = [&] {
    QStringList texts;
    for (const auto* const each : audition.window().status().findChildren<QLabel*>()) {
      texts << QString(each->text()).remove(QRegularExpression("really [0-9.,]+"));
    }
    return texts;
  };
  const auto transportBefore = transport();
  const auto statusBefore = status();
  const auto titleBefore = audition.window().windowTitle();
  setProperty(velk::kConverterProperty_MonitorSource, 1);
  audition.refresh();
  QCoreApplication::processEvents();
  EXPECT_TRUE(transport() == transportBefore);
  EXPECT_EQ(status(), statusBefore);
  EXPECT_EQ(audition.window().windowTitle(), titleBefore);
}

TEST_F(Auditioning, RecordsEveryFileOfOneFormatIntoOneRecording) {
  host::AuditionOptions options;
  options.monitorsSource = true;
  auto& audition = start(options, std::make_unique<host::AtomicFile>(path("out.wav")));
  open("stereo.wav");
  playToTheEnd();
  open("other.wav");
  playToTheEnd();
  audition.finish();
  auto expected = readSound(path("stereo.wav"));
  const auto other = readSound(path("other.wav"));
  for (std::size_t channel = 0; channel < 2; ++channel) {
    auto& plane = expected.planes[channel];
    plane.insert(plane.end(), other.planes[channel].begin(), other.planes[channel].end());
  }
  EXPECT_TRUE(readSound(path("out.wav")).planes == expected.planes);
}

TEST_F(Auditioning, SaysAtOnceThatTheRecordingFails) {
  auto& audition = start({}, std::make_unique<host::AtomicFile>(path("out.wav")));
  open("stereo.wav");
  audition.refresh();
  EXPECT_FALSE(shows("recording"));
  {
    const SmallFiles only(65536);
    playToTheEnd();
    while (audition.recorder()->failure().empty()) std::this_thread::yield();
  }
  audition.refresh();
  EXPECT_TRUE(shows("The recording has failed"));
  EXPECT_THROW(audition.finish(), host::Failure);
  EXPECT_FALSE(std::filesystem::exists(path("out.wav")));
}

}  // namespace
