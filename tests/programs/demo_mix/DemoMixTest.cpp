#include <gmock/gmock.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <nlohmann/json.hpp>

#include "Program.h"
#include "Sound.h"
#include "ui/TemporaryFolder.h"

using Json = nlohmann::json;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::StartsWith;

namespace {

class DemoMix : public testing::Test {
 protected:
  Outcome make(const std::vector<std::string>& arguments) {
    Program program(folder_.path());
    program.setExecutable(VELK_DEMO_MIX_PROGRAM);
    return program.run(arguments);
  }
  std::string bytes(const std::string& name) const {
    std::ifstream file(folder_ / name, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
  }

  TemporaryFolder folder_;
};

std::int64_t overs(const Json& channels) {
  std::int64_t sum = 0;
  for (const auto& channel : channels) {
    sum += channel.at("sample_clips").get<std::int64_t>() +
           channel.at("inter_sample_overs").get<std::int64_t>();
  }
  return sum;
}

double largest(const Json& channels, const char* reading) {
  double largest = -1000;
  for (const auto& channel : channels) {
    largest = std::max(largest, channel.at(reading).get<double>());
  }
  return largest;
}

TEST_F(DemoMix, IsTheSameFileEveryTime) {
  ASSERT_EQ(make({"first.wav"}).status, 0);
  ASSERT_EQ(make({"second.wav"}).status, 0);
  EXPECT_FALSE(bytes("first.wav").empty());
  EXPECT_TRUE(bytes("first.wav") == bytes("second.wav"));
}

TEST_F(DemoMix, IsStereoOf24SecondsAndReachesFullScaleExactly) {
  ASSERT_EQ(make({"mix.wav"}).status, 0);
  const auto header = bytes("mix.wav").substr(0, 36);
  ASSERT_EQ(header.size(), 36U);
  EXPECT_EQ(header.substr(34, 2), std::string("\x10\0", 2)) << "bits a sample";
  const auto sound = readSound((folder_ / "mix.wav").string());
  EXPECT_EQ(sound.sampleRate, 44100);
  ASSERT_EQ(sound.planes.size(), 2U);
  EXPECT_EQ(sound.planes[0].size(), 24U * 44100);
  EXPECT_NE(sound.planes[0], sound.planes[1]);
  float peak = 0;
  for (const auto& plane : sound.planes) {
    for (const float sample : plane) peak = std::max(peak, std::abs(sample));
  }
  EXPECT_EQ(peak, 1.0F);
}

TEST_F(DemoMix, LastsAsLongAsIsWanted) {
  ASSERT_EQ(make({"mix.wav", "1.5"}).status, 0);
  EXPECT_EQ(readSound((folder_ / "mix.wav").string()).planes.at(0).size(), 66150U);
}

TEST_F(DemoMix, ComesOutOfTheEncoderWithHigherPeaksAndMoreOvers) {
  ASSERT_EQ(make({"mix.wav"}).status, 0);
  const auto outcome =
      Program(folder_.path())
          .run({"--headless", "--seconds", "20", "--json", "--preset", "128k", "mix.wav"});
  ASSERT_EQ(outcome.status, 0) << outcome.err;
  const auto readings = Json::parse(outcome.out);
  const auto& source = readings.at("source");
  const auto& encoded = readings.at("encoded");
  const double sourcePeak = largest(source, "sample_peak_dbfs");
  EXPECT_EQ(sourcePeak, 0.0);
  EXPECT_GE(largest(encoded, "inter_sample_peak_dbtp"), sourcePeak + 0.3);
  EXPECT_GT(overs(encoded), overs(source));
}

TEST_F(DemoMix, RefusesWhatMakesNoSenseInOneLine) {
  const std::vector<std::vector<std::string>> lines = {{},
                                                       {"--loud"},
                                                       {""},
                                                       {"a.wav", "b.wav", "c"},
                                                       {"a.wav", "long"},
                                                       {"a.wav", "0"},
                                                       {"a.wav", "-3"},
                                                       {"a.wav", "nan"},
                                                       {"a.wav", "1e9"},
                                                       {"a.wav", ""}};
  for (const auto& arguments : lines) {
    const auto outcome = make(arguments);
    EXPECT_EQ(outcome.status, 2) << testing::PrintToString(arguments);
    EXPECT_THAT(outcome.complaints(), ElementsAre(StartsWith("demo-mix: ")));
    EXPECT_FALSE(std::filesystem::exists(folder_ / "a.wav"));
  }
}

TEST_F(DemoMix, NamesTheFileThatItCannotWriteInOneLine) {
  const auto outcome = make({"missing/mix.wav", "1"});
  EXPECT_EQ(outcome.status, 1);
  EXPECT_THAT(outcome.complaints(), ElementsAre(HasSubstr("'missing/mix.wav'")));
}

}  // namespace
