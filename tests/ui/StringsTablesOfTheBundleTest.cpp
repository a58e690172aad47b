#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <chrono>
#include <filesystem>
#include <regex>
#include <set>
#include <string>
#include <vector>

#include "ui/Bundle.h"
#include "ui/Localization.h"
#include "ui/LookUps.h"
#include "ui/StringsTable.h"
#include "ui/TemporaryFolder.h"
#include "ui/TextFile.h"

namespace {

namespace fs = std::filesystem;
using testing::IsEmpty;
using testing::Not;

const fs::path kResources = VELK_RESOURCES;
const fs::path kSources = VELK_SOURCES;
constexpr const char* kTable = "AUDravoAACStrings";

ui::StringsTable table(const std::string& language) {
  return ui::readStringsTable(kResources / (language + ".lproj") /
                              (std::string(kTable) + ".strings"));
}

std::set<std::string> keys(const ui::StringsTable& table) {
  std::set<std::string> keys;
  for (const auto& [key, text] : table) {
    keys.insert(key);
  }
  return keys;
}

/// The ones that the first set has and the second lacks.
std::set<std::string> missing(const std::set<std::string>& wanted, const ui::StringsTable& table) {
  std::set<std::string> missing;
  for (const std::string& key : wanted) {
    if (table.find(key) == table.end()) {
      missing.insert(key);
    }
  }
  return missing;
}

std::vector<std::string> matches(const std::string& text, const std::regex& pattern) {
  std::vector<std::string> found;
  for (std::sregex_iterator match(text.begin(), text.end(), pattern), end; match != end; ++match) {
    found.push_back(match->str());
  }
  return found;
}

/// Characters, not bytes.
std::size_t characters(const std::string& text) {
  std::size_t count = 0;
  for (const char c : text) {
    count += (static_cast<unsigned char>(c) & 0xC0U) != 0x80U ? 1U : 0U;
  }
  return count;
}

std::vector<fs::path> filesIn(const fs::path& folder, const std::string& extension) {
  std::vector<fs::path> files;
  for (const auto& entry : fs::recursive_directory_iterator(folder)) {
    if (entry.path().extension() == extension) {
      files.push_back(entry.path());
    }
  }
  return files;
}

TEST(EnglishTable, GivesEveryTextAsItIs) {
  for (const auto& [key, text] : table("en")) {
    EXPECT_EQ(text, key);
  }
}

TEST(EnglishTable, HoldsEveryTextThatTheSourcesLookUp) {
  const ui::StringsTable english = table("en");
  std::size_t count = 0;
  for (const fs::path& file : filesIn(kSources, ".cpp")) {
    const std::set<std::string> lookedUp = lookedUpKeys(readBytes(file));
    EXPECT_THAT(missing(lookedUp, english), IsEmpty()) << fs::relative(file, kSources);
    count += lookedUp.size();
  }
  EXPECT_GE(count, 20U) << "the search finds nothing any more";
}

TEST(EnglishTable, HoldsEveryCaptionOfTheInterfaceFiles) {
  const ui::StringsTable english = table("en");
  const std::vector<fs::path> files = filesIn(kResources, ".ui");
  EXPECT_THAT(files, Not(IsEmpty()));
  for (const fs::path& file : files) {
    const std::set<std::string> texts = captions(readBytes(file));
    EXPECT_GE(texts.size(), 20U) << file.filename();
    EXPECT_THAT(missing(texts, english), IsEmpty()) << file.filename();
  }
}

TEST(EnglishTable, HoldsEveryTextOfTheProgram) {
  EXPECT_THAT(
      missing({"AAC",
               "AAC HE",
               "AAC HEv2",
               "ABR",
               "VBRC",
               "VBR",
               "%@ %@ %@ Kbps",
               "%@ %@ Quality: %@",
               "Base Bit Rate:",
               "Bit Rate:",
               "Show Details",
               "Hide Details",
               "Test Cycle: %@",
               "Test Cycle: %@ of 20",
               "Learning Mode",
               "Correct",
               "Incorrect",
               "Resume",
               "Stop",
               "You are currently performing a listening test. Would you like to stop the test?",
               "%@/%@ (%@ Correct)",
               "0/0- Test aborted",
               "Test Incomplete. You need to perform at least 10 tests for your results to be "
               "statistically significant.",
               "You were not successful in identifying the encoded audio in a statistically "
               "significant manner. You needed %@ correct answers to pass this test",
               "You successfully identified the encoded audio with a 95% confidence rating.",
               "Save Test Results",
               "ListeningTestResults-%@",
               "Listening Test Results\n======================\n\n",
               "Date: %@\n\n",
               "Encoder: %@\n",
               "Test Cycles: %@\n",
               "Results: %@/%@ (%@ Correct)\n\n"},
              table("en")),
      IsEmpty());
}

class TranslatedTable : public testing::TestWithParam<const char*> {
 protected:
  const ui::StringsTable english = table("en");
  const ui::StringsTable translated = table(GetParam());
};

TEST_P(TranslatedTable, HasTheKeysOfTheEnglishOneAndNoOther) {
  EXPECT_THAT(missing(keys(english), translated), IsEmpty());
  EXPECT_THAT(missing(keys(translated), english), IsEmpty());
}

TEST_P(TranslatedTable, KeepsThePlaceholdersInTheirOrder) {
  const std::regex placeholder(R"(%(\d+\$)?@)");
  for (const auto& [key, text] : translated) {
    EXPECT_EQ(matches(text, placeholder), matches(key, placeholder)) << key;
  }
}

TEST_P(TranslatedTable, EndsEachTextAsTheEnglishOneEnds) {
  const std::regex blanks(R"(\s*$)");
  for (const auto& [key, text] : translated) {
    EXPECT_EQ(matches(text, blanks).front(), matches(key, blanks).front()) << key;
    EXPECT_EQ(text.back() == ':', key.back() == ':') << key;
    EXPECT_EQ(text.empty(), key.empty()) << key;
  }
}

TEST_P(TranslatedTable, UnderlinesTheHeadingInItsOwnLength) {
  const std::string text = translated.at("Listening Test Results\n======================\n\n");
  const std::string heading = text.substr(0, text.find('\n'));
  EXPECT_EQ(text, heading + "\n" + std::string(characters(heading), '=') + "\n\n");
}

TEST_P(TranslatedTable, UsesTypographicMarks) {
  for (const auto& [key, text] : translated) {
    EXPECT_EQ(text.find('\''), std::string::npos) << text;
    EXPECT_EQ(text.find("..."), std::string::npos) << text;
    EXPECT_EQ(text.find('"'), std::string::npos) << text;
  }
}

INSTANTIATE_TEST_SUITE_P(Languages, TranslatedTable, testing::Values("en", "de", "fr"),
                         [](const auto& language) { return std::string(language.param); });

TEST(FrenchTable, PutsANoBreakSpaceBeforeEveryTallMark) {
  const std::string space = "\u00A0";
  for (const auto& [key, text] : table("fr")) {
    for (std::size_t i = 0; i < text.size(); ++i) {
      if (std::string(":;?!%").find(text[i]) != std::string::npos && text.substr(i, 2) != "%@") {
        EXPECT_TRUE(i >= space.size() && text.compare(i - space.size(), space.size(), space) == 0)
            << text;
      }
    }
  }
}

TEST(GermanTable, PutsANoBreakSpaceBeforeThePercentSign) {
  const std::string space = "\u00A0";
  for (const auto& [key, text] : table("de")) {
    for (std::size_t i = 0; i < text.size(); ++i) {
      if (text[i] == '%' && text.substr(i, 2) != "%@") {
        EXPECT_TRUE(i >= space.size() && text.compare(i - space.size(), space.size(), space) == 0)
            << text;
      }
    }
  }
}

struct User {
  const char* language;
  const char* locale;
};

class ResultsFileOf : public testing::TestWithParam<User> {};

TEST_P(ResultsFileOf, CanHoldEveryTextOfTheTable) {
  const TemporaryFolder folder;
  for (const auto& [key, text] : table(GetParam().language)) {
    EXPECT_TRUE(ui::writeMacRoman(folder / "results.txt", text)) << text;
  }
}

TEST_P(ResultsFileOf, CanBeSavedWithTheNumbersAndDatesOfTheYear) {
  const TemporaryFolder folder;
  const ui::Bundle bundle(kResources, {GetParam().language});
  const auto localization = ui::makeLocalization(GetParam().locale);
  for (int day = 0; day < 366; ++day) {
    const std::chrono::system_clock::time_point moment{std::chrono::seconds(1700000000) +
                                                       std::chrono::hours(25 * day)};
    const std::string text =
        ui::formatted(bundle.localizedString("Date: %@\n\n", kTable),
                      {localization->longDateShortTime(moment)}) +
        ui::formatted(bundle.localizedString("Results: %@/%@ (%@ Correct)\n\n", kTable),
                      {localization->plain(day), localization->plain(1234),
                       localization->percent(day / 100.0)});
    ASSERT_TRUE(ui::writeMacRoman(folder / "results.txt", text)) << text;
  }
}

INSTANTIATE_TEST_SUITE_P(Users, ResultsFileOf,
                         testing::Values(User{"en", "en_US"}, User{"en", "en_GB"},
                                         User{"de", "de_DE"}, User{"de", "de_CH"},
                                         User{"fr", "fr_FR"}, User{"fr", "fr_CA"}),
                         [](const auto& user) { return std::string(user.param.locale); });

}  // namespace
