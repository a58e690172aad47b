#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cstdint>
#include <limits>
#include <string>
#include <vector>

#include "view/behaviour/Stage.h"

namespace {

using behaviour::setStage;
using behaviour::Stage;
using fakes::FakeConverter;
using fakes::UnitCall;
using std::chrono::milliseconds;
using testing::EndsWith;
using testing::IsEmpty;
using namespace velk;

constexpr const char* kSourceLamp = "auditionController.sourceClipIndicator";
constexpr const char* kEncodedLamp = "auditionController.encoderClipIndicator";
constexpr const char* kReset = "auditionController.resetButton";
constexpr std::uint16_t kDeleteKey = 51;
constexpr milliseconds kPoll(75);

std::string field(const std::string& reading) {
  return "auditionController." + reading + "Field";
}
std::string lamp(const std::string& reading) {
  return "auditionController." + reading + "Indicator";
}

const std::vector<std::string> kStereoPeaks = {"ssl", "ssr", "sil", "sir",
                                               "esl", "esr", "eil", "eir"};
const std::vector<std::string> kMonoPeaks = {"ssm", "sim", "esm", "eim"};

/// The peak or the count that feeds a reading, by the letters of its name.
TruePeakStats& recordOf(FakeConverter& unit, const std::string& reading) {
  return unit.statistics[(reading[0] == 'e' ? 2U : 0U) + (reading[2] == 'r' ? 1U : 0U)];
}
float& peakOf(FakeConverter& unit, const std::string& reading) {
  TruePeakStats& record = recordOf(unit, reading);
  return reading[1] == 'i' ? record.mInterSamplePeak : record.mSamplePeak;
}
std::int64_t& countOf(FakeConverter& unit, const std::string& reading) {
  TruePeakStats& record = recordOf(unit, reading);
  return reading[1] == 'i' ? record.mInterSampleClipCount : record.mSampleClipCount;
}

const std::vector<std::string>& peaksFor(UInt32 channels) {
  return channels == 2 ? kStereoPeaks : kMonoPeaks;
}

/// Which of the readings show an over: red peaks and lit lamps by name, red counters with a "c".
std::vector<std::string> overs(Stage& stage) {
  std::vector<std::string> found;
  for (const auto* set : {&kStereoPeaks, &kMonoPeaks}) {
    for (const std::string& reading : *set) {
      const bool isLit = stage.lamp(lamp(reading)) == 2;
      EXPECT_EQ(stage.isRed(field(reading)), isLit) << reading;
      if (isLit) {
        found.push_back(reading);
      }
      if (stage.isRed(field(reading + "c"))) {
        found.push_back(reading + "c");
      }
    }
  }
  return found;
}

TEST(Meters, ShowEachPeakInItsOwnPlaceAlone) {
  for (const UInt32 channels : {2U, 1U, 6U}) {
    for (const std::string& reading : peaksFor(channels)) {
      const auto stage = setStage([&](FakeConverter& unit) { unit.channels = channels; });
      peakOf(stage->unit(), reading) = 1.25F;
      stage->advance(kPoll);
      EXPECT_THAT(overs(*stage), testing::ElementsAre(reading)) << channels << " channels";
      EXPECT_EQ(stage->lamp(kSourceLamp), 0);
      EXPECT_EQ(stage->lamp(kEncodedLamp), 0);
    }
  }
}

TEST(Meters, ShowEachClipCountInItsOwnPlaceAndLightTheLampOfItsSignal) {
  for (const UInt32 channels : {2U, 1U, 6U}) {
    for (const std::string& reading : peaksFor(channels)) {
      const auto stage = setStage([&](FakeConverter& unit) { unit.channels = channels; });
      countOf(stage->unit(), reading) = 12345;
      stage->advance(kPoll);
      EXPECT_THAT(overs(*stage), testing::ElementsAre(reading + "c")) << channels << " channels";
      EXPECT_EQ(stage->text(field(reading + "c")), "12345");
      EXPECT_EQ(stage->lamp(kSourceLamp), reading[0] == 's' ? 2 : 0) << reading;
      EXPECT_EQ(stage->lamp(kEncodedLamp), reading[0] == 'e' ? 2 : 0) << reading;
    }
  }
}

TEST(Meters, AreReadAboutThirteenTimesASecond) {
  const auto stage = setStage();
  stage->unit().statistics[0].mSampleClipCount = 1;
  stage->unit().log().clear();
  stage->advance(milliseconds(3000));
  const auto reads = stage->unit().log().count("unit.getProperty 5302");
  EXPECT_GE(reads, 2U * 39U);
  EXPECT_LE(reads, 2U * 41U);
}

TEST(Meters, ShowFullScaleWithoutAnOverAndTheSmallestOverAsOne) {
  const auto stage = setStage();
  peakOf(stage->unit(), "ssl") = 0.0F;
  stage->advance(kPoll);
  EXPECT_THAT(stage->text(field("ssl")), EndsWith("0.0 dB"));
  EXPECT_THAT(overs(*stage), IsEmpty());
  peakOf(stage->unit(), "ssl") = 0.0001F;
  stage->advance(kPoll);
  EXPECT_THAT(overs(*stage), testing::ElementsAre("ssl"));
}

TEST(Meters, NeverShowAPeakAtOrBelowTheFloorOrANaN) {
  const auto stage = setStage();
  stage->click(kReset);
  const std::string floor = stage->text(field("esr"));
  EXPECT_EQ(floor, "\u221260.0 dB");
  for (const float peak : {-60.0F, -61.0F, -std::numeric_limits<float>::infinity(),
                           std::numeric_limits<float>::quiet_NaN()}) {
    peakOf(stage->unit(), "esr") = peak;
    stage->advance(kPoll);
    EXPECT_EQ(stage->text(field("esr")), floor) << peak;
  }
  peakOf(stage->unit(), "esr") = -59.9F;
  stage->advance(kPoll);
  EXPECT_EQ(stage->text(field("esr")), "\u221259.9 dB");
}

TEST(Meters, HoldTheHighestPeakAndCount) {
  const auto stage = setStage();
  stage->unit().statistics.fill({-3.0F, -2.0F, 5, 6});
  stage->advance(kPoll);
  stage->unit().statistics.fill({-9.0F, std::numeric_limits<float>::quiet_NaN(), 4, -1});
  stage->advance(kPoll);
  for (const std::string& reading : kStereoPeaks) {
    EXPECT_EQ(stage->text(field(reading)), reading[1] == 'i' ? "\u22122.0 dB" : "\u22123.0 dB");
    EXPECT_EQ(stage->text(field(reading + "c")), reading[1] == 'i' ? "6" : "5");
  }
}

TEST(Meters, KeepTheirLampsUntilAReset) {
  const auto stage = setStage();
  stage->unit().statistics.fill({1.0F, 1.0F, 1, 1});
  stage->advance(kPoll);
  stage->unit().statistics.fill({-60.0F, -60.0F, 0, 0});
  stage->advance(kPoll * 4);
  EXPECT_EQ(stage->lamp(kSourceLamp), 2);
  EXPECT_EQ(stage->lamp(kEncodedLamp), 2);
  EXPECT_THAT(overs(*stage), testing::SizeIs(16));
}

TEST(Meters, KeepTheirReadingsWhenTheStatisticsAreResetFromElsewhere) {
  const auto stage = setStage();
  stage->unit().statistics.fill({1.0F, 1.0F, 1, 1});
  stage->advance(kPoll);
  stage->unit().hostSetsProperty(kConverterProperty_ResetPeakStats, 1);
  stage->advance(kPoll * 4);
  EXPECT_EQ(stage->lamp(kSourceLamp), 2);
  EXPECT_THAT(overs(*stage), testing::SizeIs(16));
  EXPECT_THAT(stage->notifications(), testing::Contains("auAACResetStatsNotification"));
}

void expectCleared(Stage& stage, UInt32 channels) {
  EXPECT_EQ(stage.lamp(kSourceLamp), 0);
  EXPECT_EQ(stage.lamp(kEncodedLamp), 0);
  EXPECT_THAT(overs(stage), IsEmpty());
  for (const std::string& reading : peaksFor(channels)) {
    EXPECT_EQ(stage.text(field(reading)), "\u221260.0 dB") << reading;
    EXPECT_EQ(stage.text(field(reading + "c")), "0") << reading;
  }
}

TEST(Meters, AreClearedByTheButton) {
  for (const UInt32 channels : {2U, 1U, 6U}) {
    const auto stage = setStage([&](FakeConverter& unit) { unit.channels = channels; });
    stage->unit().statistics.fill({1.0F, 1.0F, 1, 1});
    stage->advance(kPoll);
    EXPECT_EQ(overs(*stage).size(), 2 * peaksFor(channels).size());
    stage->click(kReset);
    expectCleared(*stage, channels);
    EXPECT_EQ(stage->unit().statistics[0].mSampleClipCount, 0);
    stage->advance(kPoll * 2);
    expectCleared(*stage, channels);
  }
}

TEST(Meters, AreClearedByTheDeleteKey) {
  const auto stage = setStage();
  stage->unit().statistics.fill({1.0F, 1.0F, 1, 1});
  stage->advance(kPoll);
  stage->pressKey(kDeleteKey);
  expectCleared(*stage, 2);
  EXPECT_EQ(stage->unit().statistics[3].mInterSampleClipCount, 0);
}

TEST(Meters, AreClearedAndRefilledWhenTheConverterRefusesTheReset) {
  const auto stage = setStage();
  stage->unit().statistics.fill({1.0F, 1.0F, 1, 1});
  stage->unit().failAlways(UnitCall::SetProperty, kConverterProperty_ResetPeakStats, -66);
  stage->advance(kPoll);
  stage->click(kReset);
  expectCleared(*stage, 2);
  EXPECT_THAT(stage->logLines(),
              testing::ElementsAre("Unable to reset clipping and peak data- error from AU: -66"));
  stage->advance(kPoll);
  EXPECT_THAT(overs(*stage), testing::SizeIs(16));
  EXPECT_EQ(stage->lamp(kSourceLamp), 2);
}

TEST(Meters, StandStillWhileTheStatisticsCannotBeRead) {
  const auto stage = setStage();
  stage->unit().statistics.fill({-6.0F, -5.0F, 0, 0});
  stage->advance(kPoll);
  stage->unit().statistics.fill({1.0F, 1.0F, 1, 1});
  stage->unit().failAlways(UnitCall::GetProperty, kConverterProperty_PeakStats, -10879);
  stage->advance(kPoll * 4);
  EXPECT_THAT(overs(*stage), IsEmpty());
  EXPECT_EQ(stage->text(field("ssl")), "\u22126.0 dB");
  EXPECT_EQ(stage->text(field("sil")), "\u22125.0 dB");
  EXPECT_EQ(stage->lamp(kSourceLamp), 0);
  EXPECT_THAT(stage->logLines(), testing::Contains("error getting peak stats: -10879"));
  stage->unit().heal();
  stage->advance(kPoll);
  EXPECT_THAT(overs(*stage), testing::SizeIs(16));
}

TEST(Meters, TakeOnlyWhatTheyCouldReadWhenReadsFailNowAndThen) {
  const auto stage = setStage();
  FakeConverter& unit = stage->unit();
  std::string shown = stage->text(field("ssl"));
  std::size_t failedReads = 0;
  for (int poll = 0; poll < 40; ++poll) {
    const bool fails = poll % 3 != 0;
    unit.statistics.fill({-20.0F + 0.1F * static_cast<float>(poll), -60.0F, 0, 0});
    if (fails) {
      unit.failAlways(UnitCall::GetProperty, kConverterProperty_PeakStats, -10879);
      // The clip summary, and the readings.
      failedReads += 2;
    }
    stage->advance(kPoll);
    EXPECT_EQ(stage->text(field("ssl")) == shown, fails) << "poll " << poll;
    shown = stage->text(field("ssl"));
    unit.heal();
  }
  EXPECT_EQ(stage->logLines(),
            std::vector<std::string>(failedReads, "error getting peak stats: -10879"));
  EXPECT_THAT(overs(*stage), IsEmpty());
  EXPECT_EQ(stage->lamp(kSourceLamp), 0);
  EXPECT_EQ(stage->lamp(kEncodedLamp), 0);
}

TEST(Meters, StandStillWhileTheTestPageIsShownAndCatchUpAfterwards) {
  const auto stage = setStage();
  stage->clickTab(1);
  stage->unit().log().clear();
  stage->unit().statistics.fill({1.0F, 1.0F, 1, 1});
  stage->advance(kPoll * 10);
  EXPECT_EQ(stage->unit().log().count("unit.getProperty 5302"), 0U);
  EXPECT_EQ(stage->lamp(kSourceLamp), 0);
  stage->pressKey(kDeleteKey);
  EXPECT_EQ(stage->unit().log().count("unit.setProperty 5303"), 0U);
  stage->clickTab(0);
  stage->advance(kPoll);
  EXPECT_EQ(stage->lamp(kSourceLamp), 2);
  EXPECT_THAT(overs(*stage), testing::SizeIs(16));
}

TEST(Meters, LightTheLampForASecondChannelOfManyThatHasNoReading) {
  const auto stage = setStage([](FakeConverter& unit) { unit.channels = 6; });
  stage->unit().statistics[3] = {2.0F, 2.0F, 3, 3};
  stage->advance(kPoll);
  EXPECT_EQ(stage->lamp(kEncodedLamp), 2);
  EXPECT_EQ(stage->lamp(kSourceLamp), 0);
  EXPECT_THAT(overs(*stage), IsEmpty());
}

}  // namespace
