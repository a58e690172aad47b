#include <gmock/gmock.h>

#include <algorithm>
#include <atomic>
#include <chrono>
#include <memory>
#include <thread>
#include <vector>

#include "DyingCodec.h"
#include "MemorySource.h"
#include "Sound.h"
#include "contract/ConverterInterface.h"
#include "host/analysis/Analysis.h"
#include "host/analysis/Scans.h"
#include "host/messages/Failure.h"

using host::Analysis;
using host::EncoderSetting;
using host::Signal;
using testing::Gt;
using testing::HasSubstr;

namespace {

using namespace std::chrono_literals;
using Step = Analysis::Step;

constexpr EncoderSetting kLow = {0, 0, 5};
constexpr EncoderSetting kHigh = {0, 0, 16};

std::uint32_t overs(const host::SharedOverview& overview, Signal signal, std::int64_t begin,
                    std::int64_t end, std::uint32_t channel = 0) {
  const auto column = overview.columns(channel, begin, end, 1).front();
  return signal == Signal::Source ? column.sourceOvers : column.encodedOvers;
}

/// Noise that was limited hard: encoding takes its flat peaks beyond full scale.
Sound loud(std::size_t frames, std::size_t channels = 2) {
  auto sound = noise(48000, channels, frames, 4.0F);
  for (auto& plane : sound.planes) {
    for (auto& sample : plane) sample = std::clamp(sample, -0.99F, 0.99F);
  }
  return sound;
}

TEST(SourceScan, DrawsTheWholeSource) {
  auto sound = noise(48000, 2, 100000, 0.5F);
  sound.planes[1][70000] = -0.9F;
  MemorySource source(sound);
  host::SharedOverview overview(2);
  host::Progress progress;
  host::scanSource(source, overview, progress);
  EXPECT_EQ(progress.share(), 1.0);
  EXPECT_NEAR(overview.columns(0, 0, 100000, 1).front().maximum, 0.5F, 0.01F);
  EXPECT_EQ(overview.columns(1, 0, 100000, 1).front().minimum, -0.9F);
  EXPECT_FALSE(overview.columns(0, 100000 + 4096, 110000, 1).front().hasSamples());
}

TEST(SourceScan, MarksTheOversOfTheSourceWhereTheyAre) {
  auto sound = silence(48000, 2, 100000);
  sound.planes[1][70000] = 1.2F;
  sound.planes[0][99999] = -1.2F;
  MemorySource source(sound);
  host::SharedOverview overview(2);
  host::Progress progress;
  host::scanSource(source, overview, progress);
  EXPECT_EQ(overs(overview, Signal::Source, 0, 69000, 1), 0U);
  EXPECT_THAT(overs(overview, Signal::Source, 69744, 70256, 1), Gt(0U));
  EXPECT_EQ(overs(overview, Signal::Source, 71000, 100000, 1), 0U);
  EXPECT_EQ(overs(overview, Signal::Source, 0, 99000, 0), 0U);
  EXPECT_THAT(overs(overview, Signal::Source, 99500, 100000, 0), Gt(0U));
}

TEST(SourceScan, MarksOversAtTheMiddleOfTheirStretch) {
  auto sound = silence(48000, 1, 1000);
  // In the stretch from 384 to 512.
  sound.planes[0][400] = 1.2F;
  MemorySource source(sound);
  host::SharedOverview overview(1);
  host::Progress progress;
  host::scanSource(source, overview, progress);
  EXPECT_THAT(overs(overview, Signal::Source, 448, 449), Gt(0U));
  EXPECT_EQ(overs(overview, Signal::Source, 0, 448), 0U);
  EXPECT_EQ(overs(overview, Signal::Source, 449, 1000), 0U);
}

TEST(SourceScan, EndsWhenItIsStopped) {
  MemorySource source(silence(48000, 2, 100000));
  host::SharedOverview overview(2);
  host::Progress progress;
  progress.stop();
  host::scanSource(source, overview, progress);
  EXPECT_FALSE(overview.columns(0, 0, 100000, 1).front().hasSamples());
}

TEST(EncodedScan, MarksTheEncodedOversAndNothingElse) {
  auto sound = noise(48000, 2, 150000, 0.25F);
  const auto burst = loud(20000);
  for (std::size_t i = 0; i < 20000; ++i) sound.planes[0][60000 + i] = burst.planes[0][i];
  MemorySource source(sound);
  host::SharedOverview overview(2);
  host::Progress progress;
  const auto readings = host::scanEncoded(source, kLow, overview, progress);
  const auto counted = readings.value().encoded[0].interSampleOvers;
  EXPECT_THAT(counted, Gt(0));
  EXPECT_EQ(overs(overview, Signal::Encoded, 60000 - 512, 80000 + 512), counted);
  EXPECT_EQ(overs(overview, Signal::Encoded, 0, 150000), counted);
  EXPECT_EQ(overs(overview, Signal::Encoded, 0, 150000, 1), 0U);
  EXPECT_EQ(overs(overview, Signal::Source, 0, 150000), 0U);
  EXPECT_EQ(progress.share(), 1.0);
}

TEST(EncodedScan, ReadsTheSameWhateverTheLength) {
  for (const std::size_t frames : {1U, 255U, 256U, 4096U, 30001U}) {
    MemorySource source(loud(frames, 1));
    host::SharedOverview overview(1);
    host::Progress progress;
    const auto readings = host::scanEncoded(source, kHigh, overview, progress);
    EXPECT_EQ(overs(overview, Signal::Encoded, 0, static_cast<std::int64_t>(frames)),
              readings.value().encoded[0].interSampleOvers)
        << frames;
  }
}

TEST(EncodedScan, GivesNothingWhenItIsStopped) {
  MemorySource source(loud(30000));
  host::SharedOverview overview(2);
  host::Progress progress;
  progress.stop();
  EXPECT_FALSE(host::scanEncoded(source, kLow, overview, progress));
}

/// The analysis of a loud file.
class Analysing : public testing::Test {
 protected:
  explicit Analysing(std::size_t frames = 60000) : sound_(loud(frames)) {}

  Analysis& start() {
    analysis_ = std::make_unique<Analysis>(
        [this]() -> std::unique_ptr<host::AudioSource> {
          ++opened_;
          if (missing_) throw host::Failure("gone");
          return std::make_unique<MemorySource>(sound_);
        },
        host::AudioFormat{48000, 2}, make_);
    return *analysis_;
  }
  void update(const EncoderSetting& setting = kLow, bool testRuns = false) {
    analysis_->update(setting, testRuns, now_);
  }
  /// Lets the work in the background come to that step.
  void wait(Step step, const EncoderSetting& setting = kLow) {
    const auto givenUp = std::chrono::steady_clock::now() + 30s;
    while (analysis_->state().step != step) {
      ASSERT_LT(std::chrono::steady_clock::now(), givenUp);
      update(setting);
      std::this_thread::yield();
    }
  }
  std::uint32_t encoded() const {
    return overs(*analysis_->overview(), Signal::Encoded, 0,
                 static_cast<std::int64_t>(sound_.frames()));
  }
  static velk::PeakStatistics peaks(std::int64_t left) {
    velk::PeakStatistics stats{};
    stats[velk::kPeakStatsSlot_EncodedLeft].mInterSampleClipCount = left;
    return stats;
  }

  Sound sound_;
  host::MakeUnit make_ = host::unitFor;
  std::atomic<int> opened_ = 0;
  std::atomic<bool> missing_ = false;
  Analysis::Clock::time_point now_{};
  std::unique_ptr<Analysis> analysis_;
};

TEST_F(Analysing, DrawsTheWaveformAndThenMarksTheEncodedSignal) {
  start();
  EXPECT_EQ(analysis_->state().step, Step::Waveform);
  wait(Step::Done);
  EXPECT_TRUE(analysis_->overview()->columns(0, 59000, 60000, 1).front().hasSamples());
  EXPECT_THAT(encoded(), Gt(0U));
  EXPECT_GE(analysis_->state().encodedOvers, encoded());
  EXPECT_EQ(opened_, 2);
}

TEST_F(Analysing, StartsAgainOnceAnotherSettingHasSettled) {
  start();
  wait(Step::Done);
  const auto before = encoded();
  update(kHigh);
  EXPECT_EQ(analysis_->state().step, Step::Encoded);
  EXPECT_EQ(encoded(), 0U);
  now_ += Analysis::kSettling - 1ms;
  update(kHigh);
  EXPECT_EQ(opened_, 2);
  now_ += 1ms;
  wait(Step::Done, kHigh);
  EXPECT_EQ(opened_, 3);
  EXPECT_NE(encoded(), before);
}

TEST_F(Analysing, WaitsWhileTheSettingKeepsChanging) {
  start();
  wait(Step::Done);
  for (int i = 0; i < 10; ++i) {
    now_ += Analysis::kSettling / 2;
    update(i % 2 == 0 ? kHigh : kLow);
  }
  EXPECT_EQ(opened_, 2);
}

TEST_F(Analysing, StandsStillWhileAListeningTestRuns) {
  start();
  wait(Step::Done);
  update(kHigh);
  now_ += Analysis::kSettling;
  update(kHigh, true);
  analysis_->follow(peaks(0), 100);
  analysis_->follow(peaks(7), 200);
  const auto revision = analysis_->overview()->revision();
  now_ += 10s;
  update(kHigh, true);
  analysis_->follow(peaks(9), 300);
  EXPECT_EQ(analysis_->overview()->revision(), revision);
  EXPECT_EQ(opened_, 2);
  // What was heard in the test stays untold.
  update(kHigh, false);
  analysis_->follow(peaks(9), 400);
  EXPECT_EQ(encoded(), 0U);
  wait(Step::Done, kHigh);
  EXPECT_THAT(encoded(), Gt(0U));
}

TEST_F(Analysing, MarksWhatPlayingReachesBeforeItIsDone) {
  start();
  analysis_->cancel();
  EXPECT_EQ(analysis_->state().step, Step::Cancelled);
  update();
  analysis_->follow(peaks(3), 20000);
  EXPECT_EQ(encoded(), 0U);
  analysis_->follow(peaks(5), 21000);
  EXPECT_EQ(overs(*analysis_->overview(), Signal::Encoded, 19000, 20500), 2U);
  // A reset of the statistics.
  analysis_->follow(peaks(0), 22000);
  analysis_->follow(peaks(1), 23000);
  EXPECT_EQ(encoded(), 3U);
}

TEST_F(Analysing, KeepsWhatIsKnownWhenItIsCancelledAndGoesOnWhenAsked) {
  start();
  wait(Step::Encoded);
  analysis_->cancel();
  now_ += 10s;
  update();
  EXPECT_EQ(analysis_->state().step, Step::Cancelled);
  EXPECT_TRUE(analysis_->overview()->columns(0, 59000, 60000, 1).front().hasSamples());
  analysis_->restart();
  wait(Step::Done);
  EXPECT_THAT(encoded(), Gt(0U));
}

TEST_F(Analysing, DrawsTheWaveformAgainAfterThatWasCancelled) {
  start();
  analysis_->cancel();
  analysis_->restart();
  EXPECT_EQ(analysis_->state().step, Step::Waveform);
  wait(Step::Done);
  EXPECT_TRUE(analysis_->overview()->columns(0, 59000, 60000, 1).front().hasSamples());
}

TEST_F(Analysing, GoesOnAfterACancelWhenTheSettingChanges) {
  start();
  wait(Step::Encoded);
  analysis_->cancel();
  update(kHigh);
  now_ += Analysis::kSettling;
  wait(Step::Done, kHigh);
}

TEST_F(Analysing, SaysWhyItFailed) {
  missing_ = true;
  start();
  wait(Step::Failed);
  EXPECT_EQ(analysis_->state().failure.english(), "gone");
  missing_ = false;
  analysis_->restart();
  wait(Step::Done);
}

TEST_F(Analysing, FailsWhenTheCodecDies) {
  make_ = unitWithDyingCodec;
  start();
  wait(Step::Failed);
  EXPECT_THAT(analysis_->state().failure.english(), HasSubstr("the encoder failed"));
  EXPECT_EQ(analysis_->state().encodedOvers, 0);
}

class AnalysingAnHour : public Analysing {
 protected:
  AnalysingAnHour() : Analysing(4000000) {}
};

TEST_F(AnalysingAnHour, EndsAtOnceWhenNobodyWantsItAnyMore) {
  start();
  wait(Step::Encoded);
  update();
  const auto begin = std::chrono::steady_clock::now();
  analysis_.reset();
  EXPECT_LT(std::chrono::steady_clock::now() - begin, 1s);
}

}  // namespace
