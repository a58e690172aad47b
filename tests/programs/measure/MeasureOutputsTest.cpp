#include <gmock/gmock.h>

#include "host/messages/Failure.h"
#include "programs/measure/Outputs.h"
#include "ui/TemporaryFolder.h"

using namespace host::measure;
using testing::ElementsAre;

namespace {

TEST(Outputs, AreNamedAfterTheFileAndNoTwoAlike) {
  EXPECT_THAT(outputNames({"a/mix.wav", "b/mix.wav", "mix.flac", "mix-2.wav", "one.two.wav"}),
              ElementsAre("mix", "mix-2", "mix-3", "mix-2-2", "one.two"));
}

TEST(Outputs, TellTheSetting) {
  EXPECT_EQ(outputName("mix", {0, 1, 14}, ".m4a"), "mix.aac-vbrc-256.m4a");
  EXPECT_EQ(outputName("mix", {2, 2, 90}, ".png"), "mix.hev2-vbr-90.png");
}

TEST(Outputs, GoToAFolderThatIsMade) {
  const TemporaryFolder folder;
  makeFolder(folder / "a/b");
  EXPECT_TRUE(std::filesystem::is_directory(folder / "a/b"));
  EXPECT_NO_THROW(makeFolder(folder / "a/b"));
  writeBytes(folder / "file", "x");
  EXPECT_THROW(makeFolder(folder / "file"), host::Failure);
}

}  // namespace
