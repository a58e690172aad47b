#include <gmock/gmock.h>
#include <sys/stat.h>
#include <unistd.h>

#include <atomic>
#include <string>
#include <thread>
#include <vector>

#include "ui/AtomicFile.h"
#include "ui/TemporaryFolder.h"

namespace {

namespace fs = std::filesystem;
using testing::ElementsAre;
using testing::IsEmpty;

mode_t permissions(const fs::path& file) {
  struct stat status = {};
  EXPECT_EQ(::stat(file.c_str(), &status), 0);
  return status.st_mode & 07777;
}

std::error_code refusal(const fs::path& path) {
  std::error_code error;
  const ui::AtomicFile file(path, error);
  return error;
}

class AtomicFile : public testing::Test {
 protected:
  const TemporaryFolder folder;
  const fs::path path = folder / "out";
};

TEST_F(AtomicFile, TakesItsNameOnCommitAndNoSooner) {
  std::error_code error;
  ui::AtomicFile file(path, error);
  ASSERT_FALSE(error);
  EXPECT_FALSE(file.write("all of it"));
  EXPECT_FALSE(fs::exists(path));
  EXPECT_FALSE(file.commit());
  EXPECT_EQ(readBytes(path), "all of it");
  EXPECT_THAT(folder.names(), ElementsAre("out"));
}

TEST_F(AtomicFile, MayBeWrittenByNameOrByDescriptor) {
  std::error_code error;
  ui::AtomicFile file(path, error);
  writeBytes(file.temporaryPath(), "by name");
  EXPECT_EQ(::pwrite(file.descriptor(), "BY", 2, 0), 2);
  EXPECT_FALSE(file.commit());
  EXPECT_EQ(readBytes(path), "BY name");
}

TEST_F(AtomicFile, IsRemovedWithoutCommit) {
  writeBytes(path, "earlier");
  {
    std::error_code error;
    ui::AtomicFile file(path, error);
    EXPECT_FALSE(file.write("half"));
    EXPECT_EQ(folder.names().size(), 2U);
  }
  EXPECT_EQ(readBytes(path), "earlier");
  EXPECT_THAT(folder.names(), ElementsAre("out"));
}

TEST_F(AtomicFile, StaysAsItWasWhenTheNameCannotBeTaken) {
  {
    std::error_code error;
    ui::AtomicFile file(path, error);
    fs::create_directory(path);
    EXPECT_EQ(file.commit(), std::errc::is_a_directory);
  }
  EXPECT_THAT(folder.names(), ElementsAre("out"));
  EXPECT_TRUE(fs::is_directory(path));
}

TEST_F(AtomicFile, SaysWhyItCannotBeWritten) {
  EXPECT_EQ(refusal(folder.path()), std::errc::is_a_directory);
  EXPECT_EQ(refusal(""), std::errc::is_a_directory);
  EXPECT_EQ(refusal("/dev/full"), std::errc::not_supported);
  EXPECT_EQ(refusal(folder / "no" / "out"), std::errc::no_such_file_or_directory);
  EXPECT_EQ(refusal(folder / std::string(300, 'n')), std::errc::filename_too_long);
  writeBytes(path, "a file");
  EXPECT_EQ(refusal(path / "out"), std::errc::not_a_directory);
}

TEST_F(AtomicFile, IsNobodyElsesToReadUntilItReplacesOne) {
  writeBytes(path, "earlier");
  ASSERT_EQ(::chmod(path.c_str(), 0640), 0);
  std::error_code error;
  ui::AtomicFile file(path, error);
  EXPECT_EQ(permissions(file.temporaryPath()), 0600U);
  EXPECT_FALSE(file.commit());
  EXPECT_EQ(permissions(path), 0640U);
}

TEST_F(AtomicFile, KeepsTheOwnerOfTheFileThatItReplaces) {
  if (::geteuid() != 0) GTEST_SKIP() << "only the superuser may give a file away";
  writeBytes(path, "earlier");
  ASSERT_EQ(::chown(path.c_str(), 12345, 54321), 0);
  std::error_code error;
  ui::AtomicFile file(path, error);
  EXPECT_FALSE(file.commit());
  struct stat status = {};
  ASSERT_EQ(::stat(path.c_str(), &status), 0);
  EXPECT_EQ(status.st_uid, 12345U);
  EXPECT_EQ(status.st_gid, 54321U);
}

/// The permissions of new files are the process's: whoever changes them for a moment changes them
/// for every thread.
TEST_F(AtomicFile, LeavesThePermissionsOfFilesOfOtherThreadsAlone) {
  const TemporaryFolder others;
  const mode_t earlier = ::umask(0027);
  std::atomic<bool> stop{false};
  const auto make = [&] {
    while (!stop) static_cast<void>(refusal(path));
  };
  std::thread maker(make);
  std::thread otherMaker(make);
  constexpr int filesOfEach = 200;
  std::vector<std::thread> creators;
  for (int each = 0; each < 4; ++each) {
    creators.emplace_back([&, each] {
      for (int i = 0; i < filesOfEach; ++i) {
        writeBytes(others / (std::to_string(each) + "-" + std::to_string(i)), "");
      }
    });
  }
  for (auto& creator : creators) creator.join();
  stop = true;
  maker.join();
  otherMaker.join();
  EXPECT_EQ(::umask(earlier), 0027U);
  int wrong = 0;
  for (const auto& name : others.names()) wrong += permissions(others / name) != 0640U ? 1 : 0;
  EXPECT_EQ(wrong, 0);
  EXPECT_THAT(folder.names(), IsEmpty());
}

}  // namespace
