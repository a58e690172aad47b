#include <gmock/gmock.h>

#include <clocale>
#include <limits>
#include <nlohmann/json.hpp>

#include "host/unit/Readings.h"

using Json = nlohmann::ordered_json;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::Not;

namespace {

host::Readings stereo() {
  host::Readings readings;
  readings.file = "mix.wav";
  readings.seconds = 20;
  readings.format = {44100, 2};
  readings.setting = {0, 1, 14};
  readings.bitRateKbps = 253.14;
  readings.latencySamples = 15298;
  readings.source = {{-0.1, 0.4, 0, 12}, {-0.2, 0.3, 1, 3}};
  readings.encoded = {{0.9, 1.2, 31, 57}, {0.7, 1.1, 18, 44}};
  return readings;
}

std::vector<std::string> keys(const Json& object) {
  std::vector<std::string> names;
  for (const auto& item : object.items()) names.push_back(item.key());
  return names;
}

TEST(Readings, AreOneJsonObjectOfTheseKeys) {
  const auto json = Json::parse(asJson(stereo()));
  EXPECT_THAT(keys(json),
              ElementsAre("file", "seconds", "sample_rate_hz", "channels", "setting",
                          "bit_rate_kbps", "latency_samples", "monitor", "source", "encoded"));
  EXPECT_THAT(keys(json["setting"]), ElementsAre("format", "strategy", "rate_kbps", "quality"));
  for (const char* const signal : {"source", "encoded"}) {
    ASSERT_TRUE(json[signal].is_array());
    ASSERT_EQ(json[signal].size(), 2U);
    for (const auto& channel : json[signal]) {
      EXPECT_THAT(keys(channel), ElementsAre("sample_peak_dbfs", "inter_sample_peak_dbtp",
                                             "sample_clips", "inter_sample_overs"));
    }
  }
}

TEST(Readings, KeepTheirValuesInJson) {
  const auto json = Json::parse(asJson(stereo()));
  EXPECT_EQ(json["file"], "mix.wav");
  EXPECT_EQ(json["seconds"], 20.0);
  EXPECT_EQ(json["sample_rate_hz"], 44100);
  EXPECT_EQ(json["channels"], 2);
  EXPECT_EQ(json["setting"].dump(),
            R"({"format":"AAC","strategy":"VBRC","rate_kbps":256,"quality":null})");
  EXPECT_EQ(json["bit_rate_kbps"], 253.1);
  EXPECT_EQ(json["latency_samples"], 15298);
  EXPECT_EQ(json["monitor"], "encoded");
  EXPECT_EQ(json["source"][0]["sample_peak_dbfs"], -0.1);
  EXPECT_EQ(json["source"][1]["inter_sample_overs"], 3);
  EXPECT_EQ(json["encoded"][0]["sample_clips"], 31);
  EXPECT_EQ(json["encoded"][1]["inter_sample_peak_dbtp"], 1.1);
}

TEST(Readings, HaveOneRecordPerSignalForMono) {
  auto readings = stereo();
  readings.format.channels = 1;
  readings.source.pop_back();
  readings.encoded.pop_back();
  const auto json = Json::parse(asJson(readings));
  EXPECT_EQ(json["channels"], 1);
  EXPECT_EQ(json["source"].size(), 1U);
  EXPECT_TRUE(json["source"][0].is_object());
  EXPECT_EQ(json["encoded"].size(), 1U);
}

TEST(Readings, GiveAQualityInPlaceOfARateForVbr) {
  auto readings = stereo();
  readings.setting = {1, 2, 90};
  const auto json = Json::parse(asJson(readings));
  EXPECT_EQ(json["setting"].dump(),
            R"({"format":"AAC HE","strategy":"VBR","rate_kbps":null,"quality":90})");
}

TEST(Readings, NameTheMonitoredSource) {
  auto readings = stereo();
  readings.monitorsSource = true;
  EXPECT_EQ(Json::parse(asJson(readings))["monitor"], "source");
}

TEST(Readings, HaveNoPeakForSilence) {
  auto readings = stereo();
  readings.source[0].samplePeakDbfs = -std::numeric_limits<double>::infinity();
  EXPECT_TRUE(Json::parse(asJson(readings))["source"][0]["sample_peak_dbfs"].is_null());
  EXPECT_THAT(asText(readings), HasSubstr("-inf dBFS"));
}

TEST(Readings, StayOnOneLineOfValidJsonWhateverTheFileIsCalled) {
  auto readings = stereo();
  readings.file = "a \"b\"\n\xFF.wav";
  const auto text = asJson(readings);
  EXPECT_THAT(text, Not(HasSubstr("\n")));
  EXPECT_EQ(Json::parse(text)["file"], "a \"b\"\n\xEF\xBF\xBD.wav");
}

TEST(Readings, AreATableForPeople) {
  const auto text = asText(stereo());
  EXPECT_THAT(text, HasSubstr("AAC VBRC 256 kbit/s, really 253.1 kbit/s"));
  EXPECT_THAT(text, HasSubstr("15298 samples"));
  EXPECT_THAT(text, HasSubstr("0.90 dBFS"));
  EXPECT_THAT(text, HasSubstr("57 overs"));
}

}  // namespace
