#include <gmock/gmock.h>
#include <unistd.h>

#include "host/files/AtomicFile.h"
#include "host/messages/Failure.h"
#include "ui/TemporaryFolder.h"

using host::AtomicFile;
using testing::ElementsAre;
using testing::HasSubstr;

namespace {

std::string refusal(const std::filesystem::path& path) {
  try {
    const AtomicFile file(path);
  } catch (const host::Failure& failure) {
    return failure.what();
  }
  return "it can be written";
}

TEST(AtomicFile, KeepsTheEarlierFileUntilTheNewOneIsComplete) {
  const TemporaryFolder folder;
  writeBytes(folder / "out", "earlier");
  {
    const AtomicFile file(folder / "out");
    writeBytes(file.temporaryPath(), "half");
  }
  EXPECT_EQ(readBytes(folder / "out"), "earlier");
  AtomicFile file(folder / "out");
  writeBytes(file.temporaryPath(), "new");
  file.commit();
  EXPECT_EQ(readBytes(folder / "out"), "new");
  EXPECT_THAT(folder.names(), ElementsAre("out"));
}

TEST(AtomicFile, ReplacesTheFileBehindALink) {
  const TemporaryFolder folder;
  writeBytes(folder / "real", "earlier");
  std::filesystem::create_symlink("real", folder / "link");
  AtomicFile file(folder / "link");
  writeBytes(file.temporaryPath(), "new");
  file.commit();
  EXPECT_TRUE(std::filesystem::is_symlink(folder / "link"));
  EXPECT_EQ(readBytes(folder / "real"), "new");
}

TEST(AtomicFile, SaysWhyAPlaceCannotBeWritten) {
  const TemporaryFolder folder;
  EXPECT_THAT(refusal(folder.path()), HasSubstr("it is a folder"));
  EXPECT_THAT(refusal(folder / "no" / "out"), HasSubstr("No such file or directory"));
  EXPECT_THAT(refusal("/dev/full"), HasSubstr("not an ordinary file"));
  EXPECT_THAT(refusal(""), HasSubstr("cannot write"));
  if (::geteuid() != 0) {
    writeBytes(folder / "kept", "x");
    std::filesystem::permissions(folder / "kept", std::filesystem::perms::owner_read);
    EXPECT_THAT(refusal(folder / "kept"), HasSubstr("Permission denied"));
  }
}

TEST(AtomicFile, SaysThatItCouldNotTakeItsName) {
  const TemporaryFolder folder;
  AtomicFile file(folder / "out");
  std::filesystem::create_directory(folder / "out");
  EXPECT_THROW(file.commit(), host::Failure);
}

}  // namespace
