#include <gmock/gmock.h>

#include <vector>

#include "host/messages/Failure.h"
#include "programs/audition/CommandLine.h"
#include "ui/TemporaryFolder.h"

using host::AuditionOptions;
using testing::AllOf;
using testing::HasSubstr;
using testing::Not;

namespace {

std::variant<AuditionOptions, host::HelpText> parsed(std::vector<const char*> arguments) {
  arguments.insert(arguments.begin(), "aac-audition");
  return host::parseAuditionArguments(static_cast<int>(arguments.size()), arguments.data());
}

AuditionOptions options(std::vector<const char*> arguments) {
  return std::get<AuditionOptions>(parsed(std::move(arguments)));
}

/// Why the arguments are refused; empty when they are not.
std::string complaint(std::vector<const char*> arguments) {
  try {
    parsed(std::move(arguments));
  } catch (const host::UsageError& error) {
    return error.what();
  }
  return {};
}

TEST(CommandLine, AsksForNothingByItself) {
  const auto none = options({});
  EXPECT_FALSE(none.file || none.seconds || none.screenshot || none.device || none.record ||
               none.monitorsSource || none.preset || none.setting);
  EXPECT_FALSE(none.headless || none.json);
  EXPECT_TRUE(none.channels.empty());
}

TEST(CommandLine, ReadsEveryOption) {
  const auto all = options({"mix.wav", "--headless", "--seconds", "2.5", "--screenshot", "a.png",
                            "--json", "--device", "none", "--record", "b.wav", "--monitor",
                            "source", "--preset", "high", "--channels", "3,4"});
  EXPECT_EQ(all.channels, (host::ChannelChoice{3, 4}));
  EXPECT_EQ(all.file, "mix.wav");
  EXPECT_TRUE(all.headless);
  EXPECT_EQ(all.seconds, 2.5);
  EXPECT_EQ(all.screenshot, "a.png");
  EXPECT_TRUE(all.json);
  EXPECT_EQ(all.device, "none");
  EXPECT_EQ(all.record, "b.wav");
  EXPECT_EQ(all.monitorsSource, true);
  EXPECT_EQ(all.preset, 3U);
}

TEST(CommandLine, ReadsOptionsInAnyOrderAndWithEqualsSigns) {
  const auto some = options({"--monitor=encoded", "--seconds=1", "mix.wav", "--headless"});
  EXPECT_EQ(some.file, "mix.wav");
  EXPECT_EQ(some.monitorsSource, false);
  EXPECT_EQ(some.seconds, 1.0);
}

TEST(CommandLine, TakesAFileThatLooksLikeAnOptionAfterTwoDashes) {
  EXPECT_EQ(options({"--headless", "--", "--odd.wav"}).file, "--odd.wav");
}

TEST(CommandLine, KnowsEveryPreset) {
  EXPECT_EQ(options({"--preset", "plus"}).preset, 0U);
  EXPECT_EQ(options({"--preset", "128k"}).preset, 1U);
  EXPECT_EQ(options({"--preset", "streaming"}).preset, 2U);
  EXPECT_EQ(options({"--preset", "high"}).preset, 3U);
}

TEST(CommandLine, ReadsEncoderSettings) {
  const auto setting = [](const char* text) { return *options({"--set", text}).setting; };
  EXPECT_EQ(setting("aac,vbrc,256"), (host::EncoderSetting{0, 1, 14}));
  EXPECT_EQ(setting("aac,abr,16"), (host::EncoderSetting{0, 0, 0}));
  EXPECT_EQ(setting("aac,abr,320"), (host::EncoderSetting{0, 0, 16}));
  EXPECT_EQ(setting("he,abr,64"), (host::EncoderSetting{1, 0, 7}));
  EXPECT_EQ(setting("hev2,vbr,0"), (host::EncoderSetting{2, 2, 0}));
  EXPECT_EQ(setting("aac,vbr,127"), (host::EncoderSetting{0, 2, 127}));
}

TEST(CommandLine, HelpsOnRequest) {
  const auto help = std::get<host::HelpText>(parsed({"--help"})).text;
  for (const char* const option : {"--headless", "--seconds", "--screenshot", "--json", "--device",
                                   "--record", "--monitor", "--preset", "--set", "--channels"}) {
    EXPECT_THAT(help, HasSubstr(option));
  }
  EXPECT_THAT(std::get<host::HelpText>(parsed({"--version"})).text, HasSubstr("aac-audition"));
}

struct Refused {
  const char* name;
  std::vector<const char*> arguments;
  const char* named;
};

class BadCommandLine : public testing::TestWithParam<Refused> {};

TEST_P(BadCommandLine, IsAUsageErrorOnOneLineThatNamesIt) {
  const auto& refused = GetParam();
  const auto why = complaint(refused.arguments);
  EXPECT_THAT(why, AllOf(HasSubstr(refused.named), Not(HasSubstr("\n"))));
}

INSTANTIATE_TEST_SUITE_P(
    CommandLine, BadCommandLine,
    testing::Values(Refused{"UnknownOption", {"mix.wav", "--loud"}, "--loud"},
                    Refused{"SecondFile", {"mix.wav", "other.wav"}, "other.wav"},
                    Refused{"UnknownPreset", {"--preset", "best"}, "'best'"},
                    Refused{"EmptyPreset", {"--preset", ""}, "preset"},
                    Refused{"NoPreset", {"--preset"}, "--preset"},
                    Refused{"TwoPresets", {"--preset", "plus", "--preset", "high"}, "--preset"},
                    Refused{"UnknownMonitor", {"--monitor", "both"}, "'both'"},
                    Refused{"EmptyMonitor", {"--monitor", ""}, "--monitor"},
                    Refused{"EmptyDevice", {"--device", ""}, "--device"},
                    Refused{"SecondsThatAreNoNumber", {"--seconds", "long"}, "--seconds"},
                    Refused{"NoSeconds", {"--seconds", "0"}, "--seconds"},
                    Refused{"NegativeSeconds", {"--seconds", "-1"}, "--seconds"},
                    Refused{"EndlessSeconds", {"--seconds", "inf"}, "--seconds"},
                    Refused{"SecondsNotANumber", {"--seconds", "nan"}, "--seconds"},
                    Refused{"EmptySetting", {"--set", ""}, "--set"},
                    Refused{"SettingOfOneWord", {"--set", "aac"}, "'aac'"},
                    Refused{"SettingOfFourWords", {"--set", "aac,abr,128,1"}, "'aac,abr,128,1'"},
                    Refused{"UnknownFormat", {"--set", "mp3,abr,128"}, "format"},
                    Refused{"UnknownStrategy", {"--set", "aac,cbr,128"}, "strategy"},
                    Refused{"RateOutsideTheList", {"--set", "aac,abr,127"}, "16 20 24"},
                    Refused{"RateThatIsNoNumber", {"--set", "aac,abr,128k"}, "16 20 24"},
                    Refused{"NoRate", {"--set", "aac,abr,"}, "16 20 24"},
                    Refused{"QualityTooHigh", {"--set", "aac,vbr,128"}, "0 to 127"},
                    Refused{"NegativeQuality", {"--set", "aac,vbr,-1"}, "0 to 127"},
                    Refused{"PresetAndSetting",
                            {"--preset", "plus", "--set", "aac,abr,128"},
                            "--preset and --set"},
                    Refused{"HeadlessWithoutFile", {"--headless"}, "FILE"},
                    Refused{"TwoUsesOfOneFile",
                            {"a.wav", "--record", "out", "--screenshot", "./out"},
                            "--record and --screenshot"}),
    [](const auto& test) { return test.param.name; });

TEST(CommandLine, RefusesToWriteOverTheFileThatIsPlayed) {
  const TemporaryFolder folder;
  const auto file = (folder / "mix.wav").string();
  writeBytes(file, "x");
  const auto sameFile = (folder.path() / "." / "mix.wav").string();
  EXPECT_THAT(complaint({file.c_str(), "--record", sameFile.c_str()}), HasSubstr("--record"));
  EXPECT_THAT(complaint({file.c_str(), "--screenshot", sameFile.c_str()}),
              HasSubstr("--screenshot"));
}

}  // namespace
