#include <gmock/gmock.h>

#include "programs/measure/Inputs.h"
#include "ui/TemporaryFolder.h"

using host::measure::inputsOf;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

namespace {

namespace fs = std::filesystem;

TEST(Inputs, AreTheFilesThatAreNamedWhateverTheirNames) {
  const TemporaryFolder folder;
  const auto inputs = inputsOf({"b.txt", "a.wav", "b.txt"});
  EXPECT_THAT(inputs.files, ElementsAre("b.txt", "a.wav", "b.txt"));
  EXPECT_THAT(inputs.complaints, IsEmpty());
}

TEST(Inputs, AreAllSoundFilesInAndBelowAFolderByPath) {
  const TemporaryFolder folder;
  fs::create_directories(folder / "album/disc 2");
  fs::create_directories(folder / "album/.trash");
  for (const char* const name :
       {"album/02.WAV", "album/01.flac", "album/cover.jpg", "album/.hidden.wav",
        "album/.trash/old.wav", "album/disc 2/01.opus", "album/notes"}) {
    writeBytes(folder / name, "x");
  }
  const auto inputs = inputsOf({folder / "album"});
  EXPECT_THAT(inputs.files, ElementsAre(folder / "album/01.flac", folder / "album/02.WAV",
                                        folder / "album/disc 2/01.opus"));
  EXPECT_THAT(inputs.complaints, IsEmpty());
}

TEST(Inputs, ComplainOfAFolderWithoutSound) {
  const TemporaryFolder folder;
  writeBytes(folder / "cover.jpg", "x");
  const auto inputs = inputsOf({folder.path()});
  EXPECT_THAT(inputs.files, IsEmpty());
  EXPECT_THAT(inputs.complaints, ElementsAre(HasSubstr("no sound file is in it")));
}

TEST(Inputs, DoNotFollowLinksInCircles) {
  const TemporaryFolder folder;
  fs::create_directory(folder / "album");
  writeBytes(folder / "album/01.wav", "x");
  fs::create_directory_symlink(folder.path(), folder / "album/again");
  EXPECT_THAT(inputsOf({folder.path()}).files, ElementsAre(folder / "album/01.wav"));
}

}  // namespace
