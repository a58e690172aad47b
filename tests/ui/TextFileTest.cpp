#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <unistd.h>

#include <csignal>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>

#include "ui/TemporaryFolder.h"
#include "ui/TextFile.h"

namespace {

namespace fs = std::filesystem;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::UnorderedElementsAre;

mode_t permissions(const fs::path& file) {
  struct stat status = {};
  EXPECT_EQ(::stat(file.c_str(), &status), 0);
  return status.st_mode & 07777;
}

class MacRomanFile : public testing::Test {
 protected:
  const TemporaryFolder folder;
  const fs::path file = folder / "results.txt";
};

TEST_F(MacRomanFile, HoldsOneByteForEachCharacter) {
  ASSERT_TRUE(ui::writeMacRoman(
      file, "R\u00E9sultats\u00A0: 85 % \u2013 \u2019\u201E\u201C\u2026\u20AC\n"));
  EXPECT_EQ(readBytes(file), "R\x8Esultats\xCA: 85 % \xD0 \xD5\xE3\xD2\xC9\xDB\n");
  EXPECT_THAT(folder.names(), ElementsAre("results.txt"));
}

TEST_F(MacRomanFile, KeepsAsciiAndLineEndsAsTheyAre) {
  std::string ascii;
  for (char c = 0; c < 127; ++c) {
    ascii += c;
  }
  ASSERT_TRUE(ui::writeMacRoman(file, ascii));
  EXPECT_EQ(readBytes(file), ascii);
}

TEST_F(MacRomanFile, IsEmptyForAnEmptyText) {
  ASSERT_TRUE(ui::writeMacRoman(file, ""));
  EXPECT_EQ(readBytes(file), "");
}

TEST_F(MacRomanFile, IsWrittenWholeWhenTheTextIsLong) {
  std::string text;
  std::string bytes;
  for (int i = 0; i < 200000; ++i) {
    text += "\u00E4b";
    bytes +=
        "\x8A"
        "b";
  }
  ASSERT_TRUE(ui::writeMacRoman(file, text));
  EXPECT_EQ(readBytes(file), bytes);
}

TEST_F(MacRomanFile, IsNotWrittenWhenACharacterIsMissingInTheEncoding) {
  for (const char* text : {"85\u202F%", "\u2212 0.1", "a\u200B", "a\u00AD", "\uFEFF a", "\u2126",
                           "\u03B1", "\u0661", "e\u0301", "\u97F3", "\xF0\x9D\x84\x9E", "\u2326"}) {
    EXPECT_FALSE(ui::writeMacRoman(file, text)) << text;
  }
  EXPECT_THAT(folder.names(), IsEmpty());
}

TEST_F(MacRomanFile, IsNotWrittenWhenTheTextIsNotUtf8) {
  for (const char* text : {"a\xFF", "\xC3", "\xED\xA0\x80", "\xC0\x80"}) {
    EXPECT_FALSE(ui::writeMacRoman(file, text));
  }
  EXPECT_THAT(folder.names(), IsEmpty());
}

TEST_F(MacRomanFile, ReplacesAnEarlierFileAtOnce) {
  writeBytes(file, "earlier");
  std::ifstream reader(file, std::ios::binary);
  ASSERT_TRUE(ui::writeMacRoman(file, "later"));
  EXPECT_EQ(readBytes(file), "later");
  EXPECT_EQ(std::string(std::istreambuf_iterator<char>(reader), {}), "earlier")
      << "who reads the earlier file reads it to its end";
  EXPECT_THAT(folder.names(), ElementsAre("results.txt"));
}

TEST_F(MacRomanFile, LeavesTheEarlierFileWhenTheTextIsRefused) {
  writeBytes(file, "earlier");
  EXPECT_FALSE(ui::writeMacRoman(file, "\u2212"));
  EXPECT_EQ(readBytes(file), "earlier");
  EXPECT_THAT(folder.names(), ElementsAre("results.txt"));
}

/// Lets no file grow beyond a size, as a full disk does.
class FullDisk {
 public:
  explicit FullDisk(rlim_t bytes) : signal_(std::signal(SIGXFSZ, SIG_IGN)) {
    getrlimit(RLIMIT_FSIZE, &earlier_);
    const rlimit small{bytes, earlier_.rlim_max};
    setrlimit(RLIMIT_FSIZE, &small);
  }
  FullDisk(const FullDisk&) = delete;
  FullDisk& operator=(const FullDisk&) = delete;
  ~FullDisk() {
    setrlimit(RLIMIT_FSIZE, &earlier_);
    std::signal(SIGXFSZ, signal_);
  }

 private:
  rlimit earlier_{};
  void (*signal_)(int);
};

TEST_F(MacRomanFile, LeavesTheEarlierFileAndNothingElseWhenTheDiskIsFull) {
  writeBytes(file, "earlier");
  bool isWritten = true;
  {
    const FullDisk disk(4096);
    isWritten = ui::writeMacRoman(file, std::string(10000, 'a'));
  }
  EXPECT_FALSE(isWritten);
  EXPECT_EQ(readBytes(file), "earlier");
  EXPECT_THAT(folder.names(), ElementsAre("results.txt"));
}

TEST_F(MacRomanFile, IsNotWrittenIntoAFolderThatDoesNotExist) {
  EXPECT_FALSE(ui::writeMacRoman(folder / "nowhere" / "results.txt", "a"));
  EXPECT_THAT(folder.names(), IsEmpty());
}

TEST_F(MacRomanFile, IsNotWrittenOverAFolderOrAPipe) {
  fs::create_directory(file);
  EXPECT_FALSE(ui::writeMacRoman(file, "a"));
  EXPECT_TRUE(fs::is_directory(file));
  const fs::path pipe = folder / "pipe";
  ASSERT_EQ(::mkfifo(pipe.c_str(), 0666), 0);
  EXPECT_FALSE(ui::writeMacRoman(pipe, "a"));
  EXPECT_TRUE(fs::is_fifo(pipe));
}

TEST_F(MacRomanFile, IsNotWrittenWithoutAName) {
  EXPECT_FALSE(ui::writeMacRoman("", "a"));
  EXPECT_FALSE(ui::writeMacRoman(folder.path() / "", "a"));
  EXPECT_FALSE(ui::writeMacRoman(folder.path() / std::string(300, 'n'), "a"));
  EXPECT_THAT(folder.names(), IsEmpty());
}

TEST_F(MacRomanFile, MayHaveTheLongestName) {
  const std::string name(255, 'n');
  EXPECT_TRUE(ui::writeMacRoman(folder / name, "a"));
  EXPECT_THAT(folder.names(), ElementsAre(name));
}

TEST_F(MacRomanFile, LiesInTheWorkingFolderWhenThePathIsABareName) {
  const fs::path earlier = fs::current_path();
  fs::current_path(folder.path());
  const bool isWritten = ui::writeMacRoman("results.txt", "a");
  fs::current_path(earlier);
  EXPECT_TRUE(isWritten);
  EXPECT_EQ(readBytes(file), "a");
}

TEST_F(MacRomanFile, KeepsThePermissionsOfTheEarlierFile) {
  writeBytes(file, "earlier");
  for (const mode_t mode : {0600U, 0640U, 0666U, 0755U}) {
    ASSERT_EQ(::chmod(file.c_str(), mode), 0);
    ASSERT_TRUE(ui::writeMacRoman(file, "later"));
    EXPECT_EQ(permissions(file), mode);
  }
}

TEST_F(MacRomanFile, GetsThePermissionsThatTheUserGivesNewFiles) {
  for (const mode_t mask : {0022U, 0077U}) {
    const mode_t earlier = ::umask(mask);
    const bool isWritten = ui::writeMacRoman(file, "a");
    ::umask(earlier);
    ASSERT_TRUE(isWritten);
    EXPECT_EQ(permissions(file), 0666U & ~mask);
    fs::remove(file);
  }
}

TEST_F(MacRomanFile, IsWrittenWhereASymbolicLinkPoints) {
  fs::create_directory(folder / "elsewhere");
  writeBytes(folder / "elsewhere" / "target.txt", "earlier");
  fs::create_symlink("elsewhere/target.txt", folder / "link.txt");
  fs::create_symlink(folder / "link.txt", file);
  ASSERT_TRUE(ui::writeMacRoman(file, "later"));
  EXPECT_EQ(readBytes(folder / "elsewhere" / "target.txt"), "later");
  EXPECT_TRUE(fs::is_symlink(file));
  EXPECT_TRUE(fs::is_symlink(folder / "link.txt"));
  EXPECT_THAT(folder.names(), UnorderedElementsAre("elsewhere", "link.txt", "results.txt"));
}

TEST_F(MacRomanFile, IsMadeWhereALinkPointsToNothingYet) {
  fs::create_symlink("target.txt", file);
  ASSERT_TRUE(ui::writeMacRoman(file, "a"));
  EXPECT_TRUE(fs::is_symlink(file));
  EXPECT_EQ(readBytes(folder / "target.txt"), "a");
}

TEST_F(MacRomanFile, IsNotWrittenWhenLinksRunInACircle) {
  fs::create_symlink("other.txt", file);
  fs::create_symlink("results.txt", folder / "other.txt");
  EXPECT_FALSE(ui::writeMacRoman(file, "a"));
  EXPECT_TRUE(fs::is_symlink(file));
}

/// The superuser may write anywhere; as nobody, the process may not.
class OrdinaryUser {
 public:
  OrdinaryUser() : isChanged_(::geteuid() == 0 && ::seteuid(65534) == 0) {}
  OrdinaryUser(const OrdinaryUser&) = delete;
  OrdinaryUser& operator=(const OrdinaryUser&) = delete;
  ~OrdinaryUser() {
    if (isChanged_ && ::seteuid(0) != 0) {
      std::abort();
    }
  }

 private:
  bool isChanged_;
};

TEST_F(MacRomanFile, IsNotWrittenIntoAFolderThatTheUserMayNotWrite) {
  writeBytes(file, "earlier");
  fs::permissions(file, fs::perms::all);
  fs::permissions(folder.path(), static_cast<fs::perms>(0555));
  bool isWritten = true;
  {
    const OrdinaryUser user;
    isWritten = ui::writeMacRoman(file, "later");
  }
  fs::permissions(folder.path(), static_cast<fs::perms>(0777));
  EXPECT_FALSE(isWritten);
  EXPECT_EQ(readBytes(file), "earlier");
  EXPECT_THAT(folder.names(), ElementsAre("results.txt"));
}

TEST_F(MacRomanFile, IsNotWrittenOverAProtectedFile) {
  writeBytes(file, "earlier");
  fs::permissions(file, static_cast<fs::perms>(0444));
  fs::permissions(folder.path(), static_cast<fs::perms>(0777));
  bool isWritten = true;
  {
    const OrdinaryUser user;
    isWritten = ui::writeMacRoman(file, "later");
  }
  EXPECT_FALSE(isWritten);
  EXPECT_EQ(readBytes(file), "earlier");
}

}  // namespace
