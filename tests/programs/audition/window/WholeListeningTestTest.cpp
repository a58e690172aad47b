#include <gmock/gmock.h>

#include <QTimer>
#include <algorithm>
#include <cmath>
#include <functional>
#include <numeric>
#include <span>

#include "ListeningRoom.h"
#include "Sound.h"
#include "skins/qt/PanelAnswers.h"
#include "ui/TemporaryFolder.h"

using testing::HasSubstr;
using testing::SizeIs;

namespace {

constexpr std::uint32_t kRate = 44100;
/// How long to listen to each of source, A and B, in frames.
constexpr std::size_t kStretch = 8192;
/// Length of a cross-fade, in frames.
constexpr std::size_t kFade = kRate / 100;
/// Enough for the twenty cycles of the longest test.
constexpr std::size_t kLength = std::size_t{20} * 3 * kStretch + kRate;

/// What the listener did in one cycle; the stretches start at these frames of the recording.
struct Cycle {
  std::size_t source = 0;
  std::size_t a = 0;
  std::size_t b = 0;
  bool saidA = false;
};

/// 1 for equal shapes, 0 for unrelated ones.
double correlation(std::span<const float> one, std::span<const float> other) {
  const auto product = [](std::span<const float> x, std::span<const float> y) {
    return std::inner_product(x.begin(), x.end(), y.begin(), 0.0, std::plus{},
                              [](float l, float r) { return double{l} * double{r}; });
  };
  return product(one, other) / std::sqrt(product(one, one) * product(other, other));
}

std::span<const float> stretch(const std::vector<float>& samples, std::size_t begin) {
  return std::span(samples).subspan(begin + kFade, kStretch - kFade);
}

enum class Signal { Source, Encoded, Neither };

class WholeListeningTest : public testing::Test {
 protected:
  WholeListeningTest() {
    writeSound(path("mix.wav"), noise(kRate, 2, kLength));
    source_ = readSound(path("mix.wav"));
    host::AuditionOptions options = options_;
    options.monitorsSource = false;
    ListeningRoom room(path("mix.wav"), path("encoded.wav"), options);
    room.listen(kLength);
    room.finish();
    encoded_ = readSound(path("encoded.wav"));
  }
  std::filesystem::path path(const std::string& name) const { return folder_ / name; }

  /// Listens and answers until the results sheet appears. `saysA` is told whether A sounded like
  /// the source and decides the answer. Mouse and keyboard take turns.
  void answerUntilTheEnd(
      ListeningRoom& room,
      const std::function<bool(std::size_t cycle, bool aSoundsLikeSource)>& saysA) {
    room.showTestPage();
    while (!room.widget("resultsSheet").isVisible()) {
      ASSERT_LT(cycles_.size(), 20U);
      const bool byMouse = cycles_.size() % 2 == 0;
      Cycle cycle;
      cycle.source = room.position();
      byMouse ? room.click("sourceButton") : room.press(Qt::Key_S);
      room.listen(kStretch);
      cycle.a = room.position();
      byMouse ? room.click("aButton") : room.press(Qt::Key_A);
      const auto a = room.listen(kStretch);
      cycle.b = room.position();
      byMouse ? room.click("bButton") : room.press(Qt::Key_B);
      room.listen(kStretch);
      const auto likeSource = correlation(stretch(a[0], 0), stretch(source_.planes[0], cycle.a));
      cycle.saidA = saysA(cycles_.size(), likeSource > 0.9999999);
      if (byMouse) {
        room.click(cycle.saidA ? "aIsSourceButton" : "bIsSourceButton");
      } else {
        room.press(cycle.saidA ? Qt::Key_1 : Qt::Key_2);
      }
      cycles_.push_back(cycle);
      EXPECT_EQ(room.testRuns(), !room.widget("resultsSheet").isVisible());
    }
  }

  /// Which of the two signals the recording holds at that position, in both channels.
  Signal recorded(const Sound& recording, std::size_t begin) const {
    Signal found = Signal::Neither;
    for (std::size_t channel = 0; channel < 2; ++channel) {
      const auto heard = stretch(recording.planes[channel], begin);
      const auto likeSource = correlation(heard, stretch(source_.planes[channel], begin));
      const auto likeEncoded = correlation(heard, stretch(encoded_.planes[channel], begin));
      // It must match one of them exactly and clearly not match the other.
      constexpr double same = 1 - 1e-9;
      constexpr double other = 0.9999;
      auto here = Signal::Neither;
      if (likeSource > same && likeEncoded < other) here = Signal::Source;
      if (likeEncoded > same && likeSource < other) here = Signal::Encoded;
      if (channel > 0 && here != found) return Signal::Neither;
      found = here;
    }
    return found;
  }

  /// The number of right answers, judged by the recording alone.
  std::size_t rightAnswersIn(const Sound& recording) const {
    std::size_t right = 0;
    for (const auto& cycle : cycles_) {
      EXPECT_EQ(recorded(recording, cycle.source), Signal::Source) << cycle.source;
      const auto a = recorded(recording, cycle.a);
      const auto b = recorded(recording, cycle.b);
      EXPECT_TRUE((a == Signal::Source && b == Signal::Encoded) ||
                  (a == Signal::Encoded && b == Signal::Source))
          << cycle.a;
      right += (a == Signal::Source) == cycle.saidA ? 1 : 0;
    }
    return right;
  }

  /// Compares the sheet and the results file with the recording, and returns the score.
  std::size_t expectTheRecordedScore(ListeningRoom& room) {
    room.widget<QAbstractButton>("saveResultsButton").click();
    QObject context;
    std::optional<std::string> proposed;
    // The save panel runs inside the click.
    QTimer::singleShot(0, &context,
                       [&] { proposed = qt_test::answerSavePanel(path("results.txt")); });
    const auto cyclesText = room.text("cyclesField");
    const auto resultsText = room.text("resultsField");
    room.click("resultsOKButton");
    EXPECT_EQ(proposed, "ListeningTestResults-1");
    room.finish();

    const auto right = rightAnswersIn(readSound(path("listened.wav")));
    const auto trials = std::to_string(cycles_.size());
    const auto score = std::to_string(right) + "/" + trials + " (";
    EXPECT_EQ(cyclesText, trials);
    EXPECT_THAT(resultsText, testing::StartsWith(score));
    EXPECT_THAT(readBytes(path("results.txt")),
                HasSubstr("Test Cycles: " + trials + "\nResults: " + score));
    return right;
  }

  static host::AuditionOptions lowRate() {
    host::AuditionOptions options;
    options.setting = host::EncoderSetting{0, 0, 9};
    return options;
  }

  const host::AuditionOptions options_ = lowRate();
  TemporaryFolder folder_;
  Sound source_;
  Sound encoded_;
  std::vector<Cycle> cycles_;
};

TEST_F(WholeListeningTest, IsPassedAfterTenAnswersByWhoHearsWhatTheRecordingHolds) {
  ListeningRoom room(path("mix.wav"), path("listened.wav"), options_);
  answerUntilTheEnd(room, [](std::size_t, bool likeSource) { return likeSource; });
  EXPECT_THAT(cycles_, SizeIs(10));
  EXPECT_THAT(room.text("summaryField"), HasSubstr("95% confidence"));
  EXPECT_EQ(expectTheRecordedScore(room), 10U);
}

TEST_F(WholeListeningTest, IsFailedAfterTwentyAnswersOfWhichThirteenAreRight) {
  ListeningRoom room(path("mix.wav"), path("listened.wav"), options_);
  answerUntilTheEnd(room,
                    [](std::size_t cycle, bool likeSource) { return likeSource == (cycle >= 7); });
  EXPECT_THAT(cycles_, SizeIs(20));
  EXPECT_THAT(room.text("summaryField"), HasSubstr("You needed 14 correct answers"));
  EXPECT_EQ(expectTheRecordedScore(room), 13U);
}

TEST_F(WholeListeningTest, ScoresAListenerWhoGuessesByWhatTheRecordingHolds) {
  ListeningRoom room(path("mix.wav"), path("listened.wav"), options_);
  answerUntilTheEnd(room, [](std::size_t cycle, bool) { return cycle % 3 != 0; });
  const auto verdict = room.text("summaryField");
  const auto right = expectTheRecordedScore(room);
  // Before the twentieth answer only a significant score ends a test.
  const bool passed = cycles_.size() < 20 || right >= 14;
  EXPECT_EQ(verdict.find("95% confidence") != std::string::npos, passed) << verdict;
}

}  // namespace
