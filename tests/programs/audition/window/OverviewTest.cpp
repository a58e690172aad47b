#include <gmock/gmock.h>

#include <QAction>
#include <QApplication>
#include <QMessageBox>
#include <QTest>
#include <algorithm>
#include <array>
#include <chrono>
#include <thread>
#include <vector>

#include "Sound.h"
#include "contract/ConverterInterface.h"
#include "converter/unit/ConverterUnit.h"
#include "programs/audition/Audition.h"
#include "programs/audition/waveform/WaveformPicture.h"
#include "programs/audition/window/ChannelDialog.h"
#include "ui/TemporaryFolder.h"

using host::LoopRange;
using host::audition::Audition;
using host::audition::SavedSession;
using host::audition::WaveformLanes;
using host::audition::WaveformView;

namespace {

using namespace std::chrono_literals;

/// The window around the real view, with the file's analysis and the user's settings.
class Overview : public testing::Test {
 protected:
  Overview() {
    auto loud = noise(48000, 2, 112000, 4.0F);
    for (auto& plane : loud.planes) {
      for (auto& sample : plane) sample = std::clamp(sample, -0.99F, 0.99F);
    }
    writeSound(folder_ / "loud.wav", loud);
    writeSound(folder_ / "quiet.wav", noise(48000, 2, 56000, 0.1F));
    writeSound(folder_ / "six.wav", noise(48000, 6, 48000));
    start();
  }
  void start() {
    audition_.reset();
    audition_ = std::make_unique<Audition>(host::AuditionOptions{}, nullptr, std::nullopt);
    audition_->setSettings(&settings_);
    audition_->window().show();
  }
  QString path(const std::string& name) const { return QString::fromStdString(folder_ / name); }
  void open(const std::string& name) {
    audition_->open(host::openForPlaying(folder_ / name));
    audition_->refresh();
    QCoreApplication::processEvents();
  }
  void waitForAnalysis() {
    const auto givenUp = std::chrono::steady_clock::now() + 60s;
    while (audition_->isAnalysing()) {
      ASSERT_LT(std::chrono::steady_clock::now(), givenUp);
      audition_->refresh();
      std::this_thread::yield();
    }
    audition_->refresh();
  }
  void play(std::size_t frames) {
    std::vector<float> samples(2 * 512);
    const std::array<float*, 2> planes = {samples.data(), samples.data() + 512};
    auto& player = audition_->session()->player();
    player.setOffline(true);
    player.play();
    for (std::size_t done = 0; done < frames; done += 512) {
      player.renderBlock(planes.data(), 512);
      audition_->refresh();
    }
    player.pause();
    player.renderBlock(planes.data(), 512);
  }
  void setTest(UInt32 runs) {
    audition_->session()->unit().setProperty(velk::kConverterProperty_ListeningTestActive,
                                             kAudioUnitScope_Global, 0, &runs, sizeof runs);
    audition_->refresh();
  }
  WaveformView& waveform() { return audition_->window().transport().waveform(); }
  /// The number of pixels in the marks of the encoded signal.
  int encodedMarks() {
    audition_->session()->player().seek(0);
    audition_->refresh();
    QCoreApplication::processEvents();
    const auto image = waveform().grab().toImage();
    const auto color = host::audition::markColor(host::Signal::Encoded, waveform().palette());
    int count = 0;
    for (int x = 0; x < image.width(); ++x) {
      for (int y = WaveformLanes::kWaveBottom; y < image.height(); ++y) {
        count += QColor(image.pixel(x, y)) == color ? 1 : 0;
      }
    }
    return count;
  }
  host::Player& player() { return audition_->session()->player(); }
  template <class Dialog>
  Dialog* dialog() {
    QCoreApplication::processEvents();
    for (auto* const each : audition_->window().findChildren<Dialog*>()) {
      if (each->isVisible()) return each;
    }
    return nullptr;
  }
  QStringList recent() {
    auto* const menu = audition_->window().recentMenu();
    Q_EMIT menu->aboutToShow();
    QStringList names;
    for (const auto* const action : menu->actions()) {
      if (!action->isSeparator()) names << action->text();
    }
    return names;
  }
  QAction* action(const QString& text) {
    for (auto* const each : audition_->window().findChildren<QAction*>()) {
      if (each->text() == text) return each;
    }
    return nullptr;
  }

  TemporaryFolder folder_;
  QSettings settings_{path("settings.ini"), QSettings::IniFormat};
  std::unique_ptr<Audition> audition_;
};

TEST_F(Overview, MarksTheEncodedOversOfTheWholeFileWithoutPlayingIt) {
  audition_->setAnalysing(true);
  open("loud.wav");
  waitForAnalysis();
  EXPECT_GT(encodedMarks(), 0);
  EXPECT_EQ(player().position(), 0);
  open("quiet.wav");
  waitForAnalysis();
  EXPECT_EQ(encodedMarks(), 0);
}

TEST_F(Overview, AnalysesAgainWhenTheEncoderChanges) {
  audition_->setAnalysing(true);
  open("loud.wav");
  waitForAnalysis();
  host::applyEncoderSetting(&audition_->session()->unit(), {0, 0, 5});
  audition_->refresh();
  EXPECT_TRUE(audition_->isAnalysing());
  EXPECT_EQ(encodedMarks(), 0);
  waitForAnalysis();
  EXPECT_GT(encodedMarks(), 0);
}

TEST_F(Overview, MarksWhatPlayingReachesButNothingWhileAListeningTestRuns) {
  audition_->setAnalysing(true);
  open("loud.wav");
  auto* const stop = waveform().window()->findChild<host::audition::AnalysisIndicator*>();
  Q_EMIT stop->cancelled();
  setTest(1);
  play(48000);
  EXPECT_EQ(encodedMarks(), 0);
  setTest(0);
  EXPECT_EQ(encodedMarks(), 0);
  play(48000);
  EXPECT_GT(encodedMarks(), 0);
}

TEST_F(Overview, LooksTheSameWhicheverSignalAListeningTestPlays) {
  audition_->setAnalysing(true);
  open("loud.wav");
  waitForAnalysis();
  setTest(1);
  std::vector<QImage> pictures;
  for (const UInt32 source : {0U, 1U}) {
    audition_->session()->unit().setProperty(velk::kConverterProperty_MonitorSource,
                                             kAudioUnitScope_Global, 0, &source, sizeof source);
    player().seek(0);
    play(24000);
    QCoreApplication::processEvents();
    pictures.push_back(audition_->window().transport().grab().toImage());
  }
  EXPECT_TRUE(pictures[0] == pictures[1]);
}

TEST_F(Overview, LoopsWhatIsDraggedAcross) {
  open("loud.wav");
  QTest::mousePress(&waveform(), Qt::LeftButton, {}, QPoint(100, 40));
  QTest::mouseMove(&waveform(), QPoint(150, 40));
  QTest::mouseMove(&waveform(), QPoint(200, 40));
  QTest::mouseRelease(&waveform(), Qt::LeftButton, {}, QPoint(200, 40));
  EXPECT_EQ(player().loop(), (LoopRange{20000, 40000}));
  EXPECT_EQ(player().position(), 20000);
  action("&Loop")->trigger();
  EXPECT_EQ(player().loop(), std::nullopt);
  action("&Loop")->trigger();
  EXPECT_EQ(player().loop(), (LoopRange{20000, 40000}));
  action("Re&move Loop")->trigger();
  EXPECT_EQ(player().loop(), std::nullopt);
  EXPECT_FALSE(action("&Loop")->isEnabled());
}

TEST_F(Overview, TakesItsOwnKeysAndLeavesTheOthersToTheView) {
  open("loud.wav");
  audition_->window().activateWindow();
  QCoreApplication::processEvents();
  waveform().setFocus(Qt::TabFocusReason);
  QTest::keyClick(audition_->window().focusWidget(), Qt::Key_PageDown);
  EXPECT_EQ(player().position(), 20 * waveform().step());
  QTest::keyClick(audition_->window().focusWidget(), Qt::Key_BracketLeft);
  EXPECT_EQ(player().loop(), (LoopRange{20 * waveform().step(), 112000}));
  QTest::keyClick(audition_->window().focusWidget(), Qt::Key_1);
  UInt32 monitorsSource = 0;
  UInt32 size = sizeof monitorsSource;
  audition_->session()->unit().getProperty(velk::kConverterProperty_MonitorSource,
                                           kAudioUnitScope_Global, 0, &monitorsSource, size);
  EXPECT_EQ(monitorsSource, 1U);
}

TEST_F(Overview, SetsTheLoopWhereItIsByMenu) {
  open("loud.wav");
  player().seek(30000);
  action("&Start Loop Here")->trigger();
  EXPECT_EQ(player().loop(), (LoopRange{30000, 112000}));
  player().seek(50000);
  action("&End Loop Here")->trigger();
  EXPECT_EQ(player().loop(), (LoopRange{30000, 50000}));
}

TEST_F(Overview, ForgetsTheLoopOfTheFileBefore) {
  open("loud.wav");
  action("&Start Loop Here")->trigger();
  open("quiet.wav");
  EXPECT_EQ(player().loop(), std::nullopt);
  EXPECT_FALSE(action("&Loop")->isEnabled());
}

TEST_F(Overview, GoesToTheVeryFrame) {
  open("loud.wav");
  Q_EMIT waveform().positionChosen(12345);
  EXPECT_EQ(player().position(), 12345);
  EXPECT_EQ(waveform().position(), 12345);
}

TEST_F(Overview, AsksWhichChannelsToPlayOfAFileWithMany) {
  audition_->openAndPlay(path("six.wav"));
  auto* const question = dialog<host::audition::ChannelDialog>();
  ASSERT_NE(question, nullptr);
  EXPECT_EQ(audition_->session(), nullptr);
  question->findChildren<QComboBox*>()[0]->setCurrentIndex(4);
  question->findChildren<QComboBox*>()[1]->setCurrentIndex(5);
  question->accept();
  ASSERT_NE(audition_->session(), nullptr);
  EXPECT_EQ(audition_->session()->channels(), (host::ChannelChoice{5, 6}));
  EXPECT_EQ(player().format().channels, 2U);
}

TEST_F(Overview, SaysWhatIsWrongWithAFileAndKeepsTheOneThatPlays) {
  open("loud.wav");
  audition_->openAndPlay(path("missing.wav"));
  auto* const message = dialog<QMessageBox>();
  ASSERT_NE(message, nullptr);
  EXPECT_TRUE(message->informativeText().contains("missing.wav"));
  EXPECT_EQ(audition_->session()->path(), folder_ / "loud.wav");
}

TEST_F(Overview, OffersTheFilesThatWereOpenedLast) {
  EXPECT_EQ(recent(), (QStringList{"No Files", "&Clear List"}));
  audition_->openAndPlay(path("loud.wav"));
  audition_->openAndPlay(path("quiet.wav"));
  start();
  EXPECT_EQ(recent(), (QStringList{"quiet.wav", "loud.wav", "&Clear List"}));
  action("loud.wav")->trigger();
  EXPECT_EQ(audition_->session()->path(), folder_ / "loud.wav");
  std::filesystem::remove(folder_ / "quiet.wav");
  recent();
  action("quiet.wav")->trigger();
  EXPECT_NE(dialog<QMessageBox>(), nullptr);
  EXPECT_EQ(recent(), (QStringList{"loud.wav", "&Clear List"}));
  action("&Clear List")->trigger();
  EXPECT_EQ(recent(), (QStringList{"No Files", "&Clear List"}));
}

TEST_F(Overview, ContinuesWhereTheUserLeftOff) {
  EXPECT_EQ(audition_->sessionToSave(), std::nullopt);
  open("loud.wav");
  host::applyEncoderSetting(&audition_->session()->unit(), {0, 0, 5});
  Q_EMIT waveform().loopChosen(20000, 40000);
  action("&Loop")->trigger();
  Q_EMIT waveform().positionChosen(30001);
  const auto saved = audition_->sessionToSave();
  ASSERT_TRUE(saved);
  start();
  audition_->restore(*saved);
  EXPECT_EQ(audition_->sessionToSave(), saved);
  EXPECT_EQ(player().position(), 30001);
  EXPECT_EQ(player().loop(), std::nullopt);
  EXPECT_FALSE(player().isPlaying());
  action("&Loop")->trigger();
  EXPECT_EQ(player().loop(), (LoopRange{20000, 40000}));
}

TEST_F(Overview, OpensNothingWhileAListeningTestRuns) {
  open("loud.wav");
  setTest(1);
  audition_->openAndPlay(path("quiet.wav"));
  EXPECT_EQ(audition_->session()->path(), folder_ / "loud.wav");
  EXPECT_FALSE(audition_->window().recentMenu()->isEnabled());
}

}  // namespace
