#include <gtest/gtest.h>

#include <map>
#include <string>

#include "host/messages/Failure.h"

using host::Failure;
using host::Message;

namespace {

std::string backwards(const char* english) {
  const std::map<std::string, std::string> words = {
      {"cannot take %1 of '%2'", "of '%2' %1 cannot be taken"}, {"nothing", "naught"}};
  const auto found = words.find(english);
  return found == words.end() ? english : found->second;
}

TEST(Message, IsEnglishUntilItIsTranslated) {
  const Message message(Message::words("cannot take %1 of '%2'"), {3U, "a file"});
  EXPECT_EQ(message.english(), "cannot take 3 of 'a file'");
  EXPECT_EQ(message.translated(backwards), "of 'a file' 3 cannot be taken");
}

TEST(Message, TranslatesValuesThatAreWords) {
  const Message message(Message::words("cannot take %1 of '%2'"),
                        {Message::words("nothing"), "nothing"});
  EXPECT_EQ(message.translated(backwards), "of 'nothing' naught cannot be taken");
}

TEST(Message, LeavesAValueAloneThatLooksLikeAPlace) {
  const Message message(Message::words("cannot take %1 of '%2'"), {"%2", "100 %1 %"});
  EXPECT_EQ(message.english(), "cannot take %2 of '100 %1 %'");
}

TEST(Message, KeepsPlacesThatNothingFills) {
  EXPECT_EQ(Message(Message::words("%1 %2 %0 100 % %"), {-1}).english(), "-1 %2 %0 100 % %");
}

TEST(Message, IsEmptyWithoutWords) {
  EXPECT_TRUE(Message().empty());
  EXPECT_EQ(Message().translated(backwards), "");
  EXPECT_FALSE(Message("device").empty());
}

TEST(Failure, SaysWhatInEnglishAndKeepsTheMessage) {
  const Failure failure(Message::words("cannot take %1 of '%2'"), {1, "it"});
  const auto copy = failure;
  EXPECT_STREQ(copy.what(), "cannot take 1 of 'it'");
  EXPECT_EQ(copy.message().translated(backwards), "of 'it' 1 cannot be taken");
}

}  // namespace
