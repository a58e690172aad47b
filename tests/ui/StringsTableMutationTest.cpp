#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <random>
#include <string>
#include <string_view>

#include "ui/StringsTableProperty.h"
#include "ui/TemporaryFolder.h"

namespace {

class ShippedStringsTable : public testing::TestWithParam<const char*> {
 protected:
  const std::string text =
      readBytes(std::filesystem::path(VELK_RESOURCES) / (std::string(GetParam()) + ".lproj") /
                "AUDravoAACStrings.strings");
};

TEST_P(ShippedStringsTable, GivesOnlyItsOwnEntriesOrAnErrorWhenItIsCutOffAnywhere) {
  const ui::StringsTable whole = ui::parseStringsTable(text);
  std::size_t errors = 0;
  for (std::size_t length = 0; length < text.size(); ++length) {
    const std::string_view part = std::string_view(text).substr(0, length);
    ASSERT_EQ(brokenProperty(part), "") << length << " bytes";
    try {
      const ui::StringsTable some = ui::parseStringsTable(part);
      ASSERT_TRUE(std::includes(whole.begin(), whole.end(), some.begin(), some.end()))
          << length << " bytes";
    } catch (const ui::StringsTableError&) {
      ++errors;
    }
  }
  EXPECT_GT(errors, text.size() / 2);
}

TEST_P(ShippedStringsTable, IsReadOrRefusedWithALineWhateverBytesChange) {
  constexpr std::string_view marks("\"\\;=/*Un\n\r\0\xC3\xEF\xFF", 14);
  std::mt19937 random(20231114);
  const auto below = [&random](std::size_t bound) {
    return std::uniform_int_distribution<std::size_t>(0, bound - 1)(random);
  };
  std::size_t errors = 0;
  constexpr std::size_t mutants = 3000;
  for (std::size_t mutant = 0; mutant < mutants; ++mutant) {
    std::string changed = text;
    for (std::size_t change = below(4) + 1; change > 0; --change) {
      const std::size_t place = below(changed.size());
      const char mark = below(2) == 0 ? marks[below(marks.size())] : static_cast<char>(below(256));
      switch (below(4)) {
        case 0:
          changed[place] = mark;
          break;
        case 1:
          changed.insert(place, 1, mark);
          break;
        case 2:
          changed.erase(place, below(20) + 1);
          break;
        default:
          changed.insert(place, changed.substr(below(changed.size()), below(60)));
      }
    }
    ASSERT_EQ(brokenProperty(changed), "") << "mutant " << mutant << ":\n" << changed;
    try {
      ui::parseStringsTable(changed);
    } catch (const ui::StringsTableError&) {
      ++errors;
    }
  }
  EXPECT_GT(errors, mutants / 4);
  EXPECT_LT(errors, mutants);
}

INSTANTIATE_TEST_SUITE_P(Languages, ShippedStringsTable, testing::Values("en", "de", "fr"),
                         [](const auto& language) { return std::string(language.param); });

}  // namespace
