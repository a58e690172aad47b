#include <gmock/gmock.h>

#include "host/messages/Failure.h"
#include "programs/measure/Options.h"

using namespace host::measure;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::SizeIs;

namespace {

std::variant<Options, host::HelpText> parsed(std::vector<const char*> words) {
  words.insert(words.begin(), "aac-measure");
  return parsedArguments(static_cast<int>(words.size()), words.data());
}

Options options(const std::vector<const char*>& words) {
  return std::get<Options>(parsed(words));
}

std::string complaintAbout(const std::vector<const char*>& words) {
  try {
    parsed(words);
  } catch (const host::UsageError& error) {
    return error.what();
  }
  return "none";
}

TEST(Options, AskForThePresetPlusByThemselves) {
  const auto plain = options({"mix.wav"});
  EXPECT_THAT(plain.inputs, ElementsAre("mix.wav"));
  ASSERT_THAT(plain.encoders, SizeIs(1));
  EXPECT_EQ(plain.encoders[0].preset, 0U);
  EXPECT_EQ(plain.encoders[0].setting, (host::EncoderSetting{0, 1, 14}));
  EXPECT_GE(plain.jobs, 1U);
  EXPECT_FALSE(plain.findTrim || plain.interSample || plain.json || plain.failOnOvers ||
               plain.pictures || plain.bitStreams);
  EXPECT_TRUE(plain.channels.empty());
}

TEST(Options, AreAllRead) {
  const auto all = options({"a.wav", "--find-trim", "--inter-sample", "--fail-on-overs", "--json",
                            "--jobs", "3", "--channels", "5,6", "--m4a", "m", "--png", "p", "b"});
  EXPECT_THAT(all.inputs, ElementsAre("a.wav", "b"));
  EXPECT_TRUE(all.findTrim && all.interSample && all.json && all.failOnOvers);
  EXPECT_EQ(all.jobs, 3U);
  EXPECT_EQ(all.channels, (host::ChannelChoice{5, 6}));
  EXPECT_EQ(all.bitStreams, "m");
  EXPECT_EQ(all.pictures, "p");
}

TEST(Options, TakeSeveralEncodersAndNoneTwice) {
  const auto some = options({"--preset", "128k", "a.wav", "--set", "he,abr,64", "--preset", "plus",
                             "--set", "aac,vbrc,128", "b.wav"});
  EXPECT_THAT(some.inputs, ElementsAre("a.wav", "b.wav"));
  ASSERT_THAT(some.encoders, SizeIs(3));
  EXPECT_EQ(some.encoders[0].setting, (host::EncoderSetting{0, 1, 10}));
  EXPECT_EQ(some.encoders[1].setting, (host::EncoderSetting{0, 1, 14}));
  EXPECT_EQ(some.encoders[2].setting, (host::EncoderSetting{1, 0, 7}));
  EXPECT_THAT(options({"--all", "--preset", "high", "a.wav"}).encoders, SizeIs(4));
}

TEST(Options, MakeSenseOrAreRefused) {
  EXPECT_THAT(complaintAbout({}), HasSubstr("give FILE or FOLDER"));
  EXPECT_THAT(complaintAbout({"a.wav", "--preset", "best"}), HasSubstr("'best'"));
  EXPECT_THAT(complaintAbout({"a.wav", "--set", "aac"}), HasSubstr("'aac'"));
  EXPECT_THAT(complaintAbout({"a.wav", "--jobs", "0"}), HasSubstr("--jobs"));
  EXPECT_THAT(complaintAbout({"a.wav", "--jobs", "many"}), HasSubstr("--jobs"));
  EXPECT_THAT(complaintAbout({"a.wav", "--channels", "0"}), HasSubstr("--channels"));
  EXPECT_THAT(complaintAbout({"a.wav", "--inter-sample"}), HasSubstr("--find-trim"));
  EXPECT_THAT(complaintAbout({"a.wav", "--loud"}), HasSubstr("--loud"));
}

TEST(Options, AreHelpedOnRequest) {
  const auto help = std::get<host::HelpText>(parsed({"--help"})).text;
  for (const char* const word :
       {"--preset", "--all", "--set", "--channels", "--find-trim", "--inter-sample",
        "--fail-on-overs", "--jobs", "--json", "--m4a", "--png", "Exit status"}) {
    EXPECT_THAT(help, HasSubstr(word));
  }
  EXPECT_THAT(std::get<host::HelpText>(parsed({"--version"})).text, HasSubstr("aac-measure"));
}

}  // namespace
