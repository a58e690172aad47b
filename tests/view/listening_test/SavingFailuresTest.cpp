#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <signal.h>
#include <sys/resource.h>
#include <unistd.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <string>

#include "view/listening_test/SavingFixture.h"

namespace listening_test {
namespace {

using testing::HasSubstr;
using testing::IsEmpty;
namespace fs = std::filesystem;

/// While it lives, writes beyond a few bytes fail as on a full disk.
class FullDisk {
 public:
  FullDisk() {
    earlierHandler_ = ::signal(SIGXFSZ, SIG_IGN);
    ::getrlimit(RLIMIT_FSIZE, &earlier_);
    rlimit few = earlier_;
    few.rlim_cur = 16;
    ::setrlimit(RLIMIT_FSIZE, &few);
  }
  FullDisk(const FullDisk&) = delete;
  FullDisk& operator=(const FullDisk&) = delete;
  ~FullDisk() {
    ::setrlimit(RLIMIT_FSIZE, &earlier_);
    ::signal(SIGXFSZ, earlierHandler_);
  }

 private:
  rlimit earlier_{};
  void (*earlierHandler_)(int);
};

/// The superuser may write anywhere, so this makes the process another user while it lives.
class OrdinaryUser {
 public:
  OrdinaryUser() : changed_(::geteuid() == 0 && ::seteuid(kNobody) == 0) {}
  OrdinaryUser(const OrdinaryUser&) = delete;
  OrdinaryUser& operator=(const OrdinaryUser&) = delete;
  ~OrdinaryUser() {
    if (changed_ && ::seteuid(0) != 0) {
      ::abort();
    }
  }

 private:
  static constexpr uid_t kNobody = 65534;
  bool changed_;
};

TEST_F(ResultsSaving, ClosesTheSheetSilentlyWhenTheFolderIsReadOnly) {
  writeOldFile();
  fs::permissions(folder_, fs::perms::owner_read | fs::perms::owner_exec | fs::perms::others_read |
                               fs::perms::others_exec);
  TestPage page;
  {
    const OrdinaryUser user;
    save(page, 2);
  }
  EXPECT_EQ(content(), "old");
  EXPECT_FALSE(page.isSheetOpen());
  EXPECT_THAT(page.record.log.lines(), IsEmpty());
}

TEST_F(ResultsSaving, ClosesTheSheetSilentlyWhenTheFolderIsNotThere) {
  TestPage page;
  saveAs(folder_ / "missing" / "results.txt", page, 2);
  EXPECT_FALSE(page.isSheetOpen());
  EXPECT_EQ(filesInFolder(), 0U);
  EXPECT_THAT(page.record.log.lines(), IsEmpty());
}

TEST_F(ResultsSaving, KeepsTheOlderFileWhenTheDiskIsFull) {
  writeOldFile();
  TestPage page;
  {
    const FullDisk disk;
    save(page, 2);
  }
  EXPECT_EQ(content(), "old");
  EXPECT_EQ(filesInFolder(), 1U);
  EXPECT_FALSE(page.isSheetOpen());
  EXPECT_THAT(page.record.log.lines(), IsEmpty());
}

TEST_F(ResultsSaving, WritesNothingToADeviceThatIsFull) {
  TestPage page;
  saveAs("/dev/full", page, 2);
  EXPECT_TRUE(fs::is_character_file("/dev/full"));
  EXPECT_FALSE(page.isSheetOpen());
  EXPECT_THAT(page.record.log.lines(), IsEmpty());
}

/// Resources that name every encoder with a bit rate `encoder`.
fs::path resourcesNaming(const fs::path& folder, const std::string& encoder) {
  fs::create_directories(folder / "resources" / "en.lproj");
  std::ofstream(folder / "resources" / "en.lproj" / "AUDravoAACStrings.strings")
      << "\"%@ %@ %@ Kbps\" = \"" << encoder << "\";\n";
  return folder / "resources";
}

TEST_F(ResultsSaving, WritesAnEncoderNameThatMacOSRomanHolds) {
  TestPage page(resourcesNaming(folder_, "Énc\u2122"), "en", "en_US");
  page.chooseEncoder({0, 0, 10});
  save(page, 2);
  EXPECT_THAT(content(), HasSubstr("Encoder: \x83nc\xAA\n"));
}

TEST_F(ResultsSaving, KeepsTheOlderFileForAnEncoderNameThatMacOSRomanLacks) {
  writeOldFile();
  TestPage page(resourcesNaming(folder_, "Ж"), "en", "en_US");
  page.chooseEncoder({0, 0, 10});
  save(page, 2);
  EXPECT_EQ(content(), "old");
  EXPECT_FALSE(page.isSheetOpen());
  EXPECT_THAT(page.record.log.lines(), IsEmpty());
}

TEST_F(ResultsSaving, WritesNothingWhenTheViewLeavesItsParentWhileThePanelRuns) {
  TestPage page;
  page.sheets().whileSavePanelRuns = [&] { page.view->native->removeFromSuperview(); };
  save(page, 2);
  EXPECT_EQ(filesInFolder(), 0U);
  EXPECT_FALSE(page.isSheetOpen());
}

TEST_F(ResultsSaving, TouchesNothingWhenTheViewIsDestroyedWhileThePanelRuns) {
  TestPage page;
  page.sheets().whileSavePanelRuns = [&] {
    page.record.calls.clear();
    page.view->native.reset();
  };
  save(page, 2);
  EXPECT_EQ(filesInFolder(), 0U);
  EXPECT_EQ(page.record.calls.count("sheets.endSheet"), 0U);
}

}  // namespace
}  // namespace listening_test
