#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <signal.h>
#include <sys/resource.h>
#include <unistd.h>

#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>
#include <vector>

#include "listening_test/TestPage.h"

namespace listening_test {
namespace {

using testing::ElementsAre;
using testing::EndsWith;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::SizeIs;
namespace fs = std::filesystem;

/// A folder of its own for each test.
class ResultsSaving : public testing::Test {
 protected:
  ResultsSaving()
      : folder_(fs::path(testing::TempDir()) /
                ("results-" + std::to_string(::getpid()) + "-" +
                 testing::UnitTest::GetInstance()->current_test_info()->name())) {
    fs::remove_all(folder_);
    fs::create_directories(folder_);
  }
  ~ResultsSaving() override {
    fs::permissions(folder_, fs::perms::owner_all, fs::perm_options::add);
    fs::remove_all(folder_);
  }

  fs::path file() const { return folder_ / "results.txt"; }
  std::string content() const {
    std::ifstream stream(file(), std::ios::binary);
    return {std::istreambuf_iterator<char>(stream), {}};
  }
  void writeOldFile() const { std::ofstream(file()) << "old"; }
  std::size_t filesInFolder() const {
    return static_cast<std::size_t>(
        std::distance(fs::directory_iterator(folder_), fs::directory_iterator()));
  }

  /// Ends a test of that many answers and saves it.
  void save(TestPage& page, int answers) {
    page.answerTimes(answers, true);
    page.endTest();
    page.button("saveResultsButton").setState(1);
    page.sheets().saveAnswer = file();
    page.confirmResults();
  }

  fs::path folder_;
};

/// Writes beyond a few bytes fail as on a full disk while it lives.
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

/// The superuser may write everywhere; he becomes somebody else while this lives.
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

TEST_F(ResultsSaving, WritesTheTestThatJustEnded) {
  TestPage page;
  page.chooseEncoder({0, 0, 10});
  save(page, 4);
  const std::string text = content();
  EXPECT_THAT(text,
              testing::StartsWith("Listening Test Results\n======================\n\nDate: "));
  EXPECT_THAT(text, EndsWith("\n\nEncoder: AAC ABR 128 Kbps\n"
                             "Test Cycles: 4\n"
                             "Results: 4/4 (100% Correct)\n"
                             "\n"
                             "Test Incomplete. You need to perform at least 10 tests for your "
                             "results to be statistically significant."));
  EXPECT_EQ(filesInFolder(), 1U);
}

TEST_F(ResultsSaving, WritesTheDateOfSaving) {
  TestPage page;
  const auto& localization = *page.view->toolkit.localization;
  const std::string before = localization.longDateShortTime(std::chrono::system_clock::now());
  save(page, 2);
  const std::string after = localization.longDateShortTime(std::chrono::system_clock::now());
  EXPECT_THAT(content(), testing::AnyOf(HasSubstr("Date: " + before + "\n\n"),
                                        HasSubstr("Date: " + after + "\n\n")));
}

TEST_F(ResultsSaving, AsksUnderTheResultsSheetAndClosesItAfterwards) {
  TestPage page;
  page.endTest();
  page.button("saveResultsButton").setState(1);
  page.record.calls.clear();
  bool sheetWasOpen = false;
  page.sheets().whileSavePanelRuns = [&] { sheetWasOpen = page.isSheetOpen(); };
  page.confirmResults();
  EXPECT_TRUE(sheetWasOpen);
  EXPECT_THAT(page.happened(), ElementsAre("sheets.runSavePanel ListeningTestResults-1 over "
                                           "listeningTestController.sourceButton",
                                           "sheets.endSheet listeningTestController.resultsSheet 1",
                                           "sheets.orderOut listeningTestController.resultsSheet"));
}

TEST_F(ResultsSaving, TitlesThePanelAndAllowsTextFilesAlone) {
  TestPage page;
  save(page, 1);
  ASSERT_THAT(page.sheets().savePanels(), SizeIs(1));
  EXPECT_EQ(page.sheets().savePanels()[0].title, "Save Test Results");
  EXPECT_EQ(page.sheets().savePanels()[0].allowedFileType, "txt");
}

TEST_F(ResultsSaving, UsesUpANumberWithEveryPanelEvenACancelledOne) {
  TestPage page;
  std::vector<std::string> names;
  for (const bool cancelled : {true, false, true, true, false}) {
    page.endTest();
    page.button("saveResultsButton").setState(1);
    page.sheets().saveAnswer.reset();
    if (!cancelled) {
      page.sheets().saveAnswer = file();
    }
    page.confirmResults();
    EXPECT_FALSE(page.isSheetOpen());
  }
  for (const auto& panel : page.sheets().savePanels()) {
    names.push_back(panel.proposedName);
  }
  EXPECT_THAT(names, ElementsAre("ListeningTestResults-1", "ListeningTestResults-2",
                                 "ListeningTestResults-3", "ListeningTestResults-4",
                                 "ListeningTestResults-5"));
  TestPage another;
  save(another, 1);
  EXPECT_EQ(another.sheets().savePanels()[0].proposedName, "ListeningTestResults-1");
}

TEST_F(ResultsSaving, WritesNothingWhenThePanelIsCancelled) {
  TestPage page;
  page.endTest();
  page.button("saveResultsButton").setState(1);
  page.confirmResults();
  EXPECT_EQ(filesInFolder(), 0U);
}

TEST_F(ResultsSaving, AlwaysTellsOfTheNewestTest) {
  TestPage page;
  page.answerTimes(5, true);
  page.endTest();
  page.confirmResults();
  save(page, 3);
  EXPECT_THAT(content(), HasSubstr("Test Cycles: 3\nResults: 3/3 (100% Correct)\n"));
}

TEST_F(ResultsSaving, NamesTheEncoderThatIsSetWhenItSaves) {
  TestPage page;
  page.chooseEncoder({0, 0, 10});
  page.answerTimes(2, true);
  page.endTest();
  page.button("saveResultsButton").setState(1);
  page.sheets().saveAnswer = file();
  page.sheets().whileSavePanelRuns = [&] { page.chooseEncoder({0, 0, 11}); };
  page.confirmResults();
  EXPECT_EQ(page.text("encoderField"), "AAC ABR 128 Kbps");
  EXPECT_THAT(content(), HasSubstr("Encoder: AAC ABR 160 Kbps\n"));
}

TEST_F(ResultsSaving, CountsASingleAnswerOnTheSheetButNotInTheFile) {
  TestPage page;
  save(page, 1);
  EXPECT_EQ(page.text("resultsField"), "1/1 (100% Correct)");
  EXPECT_THAT(content(), HasSubstr("Test Cycles: 1\n0/0- Test abortedTest Incomplete."));
}

TEST_F(ResultsSaving, MarksATestWithoutAnswersAsAborted) {
  TestPage page;
  save(page, 0);
  EXPECT_THAT(content(), HasSubstr("Test Cycles: 0\n0/0- Test abortedTest Incomplete."));
}

TEST_F(ResultsSaving, FailsNineAnswersOnTheSheetAndCallsThemIncompleteInTheFile) {
  TestPage page;
  save(page, 9);
  EXPECT_THAT(page.text("summaryField"), HasSubstr("You needed 14 correct answers"));
  EXPECT_THAT(content(), HasSubstr("Results: 9/9 (100% Correct)\n\nTest Incomplete."));
}

TEST_F(ResultsSaving, ReplacesAnOlderFile) {
  writeOldFile();
  TestPage page;
  save(page, 2);
  EXPECT_THAT(content(), HasSubstr("Test Cycles: 2\n"));
  EXPECT_EQ(filesInFolder(), 1U);
}

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
  page.endTest();
  page.button("saveResultsButton").setState(1);
  page.sheets().saveAnswer = folder_ / "missing" / "results.txt";
  page.confirmResults();
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
  page.endTest();
  page.button("saveResultsButton").setState(1);
  page.sheets().saveAnswer = "/dev/full";
  page.confirmResults();
  EXPECT_TRUE(fs::is_character_file("/dev/full"));
  EXPECT_FALSE(page.isSheetOpen());
  EXPECT_THAT(page.record.log.lines(), IsEmpty());
}

/// Resources in which a bit rate's encoder name holds a text.
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

TEST_F(ResultsSaving, ProposesANameInTheUsersLanguage) {
  TestPage page(VELK_RESOURCES, "fr", "fr_FR");
  save(page, 2);
  EXPECT_EQ(page.sheets().savePanels()[0].proposedName, "Résultats-test-écoute-1");
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
  page.answerTimes(2, true);
  page.endTest();
  page.button("saveResultsButton").setState(1);
  page.sheets().saveAnswer = file();
  page.sheets().whileSavePanelRuns = [&] { page.view->native.reset(); };
  page.record.calls.clear();
  page.confirmResults();
  EXPECT_EQ(filesInFolder(), 0U);
  EXPECT_EQ(page.record.calls.count("sheets.endSheet"), 0U);
}

TEST_F(ResultsSaving, ForgetsTheLastTestWhenItsPageIsLeft) {
  TestPage page;
  page.answerTimes(2, true);
  page.endTest();
  page.confirmResults();
  page.tabs().userClicks(0);
  page.tabs().userClicks(1);
  page.sheets().saveAnswer = file();
  page.controller().saveResultFile();
  EXPECT_EQ(filesInFolder(), 0U);
}

}  // namespace
}  // namespace listening_test
