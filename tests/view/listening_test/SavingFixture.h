#pragma once

#include <gtest/gtest.h>
#include <unistd.h>

#include <cstddef>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>

#include "view/listening_test/TestPage.h"

namespace listening_test {

/// A folder of its own for each test.
class ResultsSaving : public testing::Test {
 protected:
  ResultsSaving()
      : folder_(std::filesystem::path(testing::TempDir()) /
                ("results-" + std::to_string(::getpid()) + "-" +
                 testing::UnitTest::GetInstance()->current_test_info()->name())) {
    std::filesystem::remove_all(folder_);
    std::filesystem::create_directories(folder_);
  }
  ~ResultsSaving() override {
    std::filesystem::permissions(folder_, std::filesystem::perms::owner_all,
                                 std::filesystem::perm_options::add);
    std::filesystem::remove_all(folder_);
  }

  std::filesystem::path file() const { return folder_ / "results.txt"; }
  std::string content() const {
    std::ifstream stream(file(), std::ios::binary);
    return {std::istreambuf_iterator<char>(stream), {}};
  }
  void writeOldFile() const { std::ofstream(file()) << "old"; }
  std::size_t filesInFolder() const {
    return static_cast<std::size_t>(std::distance(std::filesystem::directory_iterator(folder_),
                                                  std::filesystem::directory_iterator()));
  }

  /// Ends a test of that many answers and saves it.
  void save(TestPage& page, int answers) { saveAs(file(), page, answers); }
  void saveAs(const std::filesystem::path& place, TestPage& page, int answers) {
    page.answerTimes(answers, true);
    page.endTest();
    page.button("saveResultsButton").setState(1);
    page.sheets().saveAnswer = place;
    page.confirmResults();
  }

  std::filesystem::path folder_;
};

}  // namespace listening_test
