#include <gmock/gmock.h>

#include <cmath>

#include "Measured.h"
#include "Sound.h"
#include "ui/TemporaryFolder.h"

using nlohmann::json;
using testing::HasSubstr;

namespace {

class FindTrim : public testing::Test {
 protected:
  json found(const std::vector<std::string>& options) {
    std::vector<std::string> arguments = {"--json", "--find-trim", "mix.wav"};
    arguments.insert(arguments.end(), options.begin(), options.end());
    const auto outcome = Program(folder_.path()).run(arguments);
    EXPECT_EQ(outcome.status, 0) << outcome.err;
    return rows(outcome).at(0);
  }
  /// What is measured of the file reduced by so much.
  json reduced(const Sound& sound, double decibels, const std::string& setting) {
    auto copy = sound;
    const auto gain = static_cast<float>(std::pow(10.0, -decibels / 20));
    for (auto& plane : copy.planes) {
      for (auto& sample : plane) sample *= gain;
    }
    writeSound(folder_ / "reduced.wav", copy);
    return rows(Program(folder_.path()).run({"--json", "reduced.wav", "--set", setting})).at(0);
  }

  TemporaryFolder folder_;
};

bool hasOvers(const json& row, const char* kind) {
  for (const auto& channel : row["encoded"]) {
    if (channel[kind] > 0) return true;
  }
  return false;
}

TEST_F(FindTrim, FindsAReductionThatIsCleanAndAboveWhichNoneIs) {
  const auto sound = noise(44100, 2, 44100 * 4, 1.3F);
  writeSound(folder_ / "mix.wav", sound);
  for (const std::string setting : {"aac,abr,96", "he,abr,64"}) {
    const auto row = found({"--set", setting});
    const double reduction = row["trim"]["reduction_db"];
    EXPECT_GT(reduction, 0);
    EXPECT_FALSE(row["trim"]["inter_sample"]);
    EXPECT_FALSE(hasOvers(row, "sample_clips"));
    EXPECT_FALSE(hasOvers(reduced(sound, reduction, setting), "sample_clips"));
    for (const double louder : {0.1, 0.2, 0.3}) {
      if (reduction - louder < 0.05) break;
      EXPECT_TRUE(hasOvers(reduced(sound, reduction - louder, setting), "sample_clips"))
          << setting << " " << reduction << " " << louder;
    }
  }
}

TEST_F(FindTrim, TellsTheReadingsOfTheReducedFile) {
  const auto sound = noise(44100, 2, 44100 * 2, 1.0F);
  writeSound(folder_ / "mix.wav", sound);
  auto row = found({"--set", "aac,vbrc,128"});
  auto again = reduced(sound, row["trim"]["reduction_db"], "aac,vbrc,128");
  row.erase("trim");
  row["file"] = again["file"] = "";
  EXPECT_EQ(row, again);
}

TEST_F(FindTrim, ReducesFurtherForInterSampleOvers) {
  const auto sound = noise(44100, 2, 44100 * 2, 1.0F);
  writeSound(folder_ / "mix.wav", sound);
  const auto row = found({"--set", "aac,vbrc,128", "--inter-sample"});
  EXPECT_TRUE(row["trim"]["inter_sample"]);
  EXPECT_FALSE(hasOvers(row, "inter_sample_overs"));
  const double reduction = row["trim"]["reduction_db"];
  EXPECT_TRUE(hasOvers(reduced(sound, reduction - 0.1, "aac,vbrc,128"), "inter_sample_overs"));
  EXPECT_GE(reduction, found({"--set", "aac,vbrc,128"})["trim"]["reduction_db"]);
}

TEST_F(FindTrim, LeavesAFileAloneThatIsCleanAsItIs) {
  writeSound(folder_ / "mix.wav", noise(44100, 2, 44100, 0.3F));
  const auto row = found({});
  EXPECT_EQ(row["trim"]["reduction_db"], 0.0);
  EXPECT_EQ(row["trim"]["encodes"], 1);
}

TEST_F(FindTrim, FindsItsWayFromFarAboveFullScale) {
  writeSound(folder_ / "mix.wav", noise(44100, 2, 44100, 20.0F));
  const auto row = found({});
  EXPECT_NEAR(row["trim"]["reduction_db"], 26.0, 2.0);
  EXPECT_LT(row["trim"]["encodes"], 25);
}

TEST_F(FindTrim, CountsAsOversForTheExitStatus) {
  writeSound(folder_ / "mix.wav", noise(44100, 2, 44100, 1.3F));
  EXPECT_EQ(Program(folder_.path()).run({"--find-trim", "--fail-on-overs", "mix.wav"}).status, 3);
  writeSound(folder_ / "mix.wav", noise(44100, 2, 44100, 0.3F));
  EXPECT_EQ(Program(folder_.path()).run({"--find-trim", "--fail-on-overs", "mix.wav"}).status, 0);
}

TEST_F(FindTrim, SaysWhenNoReductionHelps) {
  writeSound(folder_ / "mix.wav", noise(44100, 1, 44100, 1e6F));
  const auto outcome = Program(folder_.path()).run({"--find-trim", "mix.wav"});
  EXPECT_EQ(outcome.status, 1);
  EXPECT_THAT(outcome.err, HasSubstr("'mix.wav': no reduction up to 60 dB"));
}

}  // namespace
