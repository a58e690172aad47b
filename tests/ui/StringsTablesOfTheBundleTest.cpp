#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <chrono>
#include <cstdint>
#include <filesystem>
#include <iterator>
#include <numeric>
#include <ostream>
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
using testing::Contains;
using testing::IsEmpty;

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

/// Those in the first set that the second lacks.
std::set<std::string> missing(const std::set<std::string>& wanted, const ui::StringsTable& table) {
  std::set<std::string> missing;
  for (const std::string& key : wanted) {
    if (table.find(key) == table.end()) {
      missing.insert(key);
    }
  }
  return missing;
}

/// "%@" and the like, in order.
std::vector<std::string> placeholders(const std::string& text) {
  std::vector<std::string> found;
  for (std::size_t at = text.find('%'); at != std::string::npos; at = text.find('%', at + 1)) {
    const std::size_t end = text.find_first_not_of("0123456789$", at + 1);
    if (end != std::string::npos && text[end] == '@') {
      found.push_back(text.substr(at, end + 1 - at));
    }
  }
  return found;
}

/// The white space at the end.
std::string ending(const std::string& text) {
  return text.substr(text.find_last_not_of(" \n\t") + 1);
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

/// The texts that the view itself looks up, wherever its sources write them.
const std::set<std::string> kTextsOfTheView = {
    "AAC",
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
    ("Test Incomplete. You need to perform at least 10 tests for your results to be "
     "statistically significant."),
    ("You were not successful in identifying the encoded audio in a statistically "
     "significant manner. You needed %@ correct answers to pass this test"),
    "You successfully identified the encoded audio with a 95% confidence rating.",
    "Save Test Results",
    "ListeningTestResults-%@",
    "Listening Test Results\n======================\n\n",
    "Date: %@\n\n",
    "Encoder: %@\n",
    "Test Cycles: %@\n",
    "Results: %@/%@ (%@ Correct)\n\n"};

/// Of everything that goes into the bundle.
std::set<std::string> keysInSources() {
  std::set<std::string> keys;
  for (const char* room : {"skins", "ui", "view"}) {
    for (const char* extension : {".cpp", ".mm"}) {
      for (const fs::path& file : filesIn(fs::path(kSources) / room, extension)) {
        keys.merge(lookedUpKeys(readBytes(file)));
      }
    }
  }
  return keys;
}

std::set<std::string> captionsOfInterfaceFiles() {
  std::set<std::string> texts;
  for (const fs::path& file : filesIn(kResources, ".ui")) {
    texts.merge(captions(readBytes(file)));
  }
  return texts;
}

TEST(EnglishTable, HoldsEveryTextOfTheView) {
  EXPECT_THAT(missing(kTextsOfTheView, table("en")), IsEmpty());
}

TEST(EnglishTable, HoldsEveryTextThatTheSourcesLookUp) {
  const std::set<std::string> keys = keysInSources();
  EXPECT_THAT(keys, Contains("Hide Details")) << "the search finds nothing any more";
  EXPECT_THAT(missing(keys, table("en")), IsEmpty());
}

TEST(EnglishTable, HoldsEveryCaptionOfTheInterfaceFiles) {
  const std::set<std::string> texts = captionsOfInterfaceFiles();
  EXPECT_THAT(texts, Contains("Learning Mode")) << "the search finds nothing any more";
  EXPECT_THAT(missing(texts, table("en")), IsEmpty());
}

TEST(EnglishTable, HoldsNothingThatNobodyLooksUp) {
  std::set<std::string> wanted = kTextsOfTheView;
  wanted.merge(keysInSources());
  wanted.merge(captionsOfInterfaceFiles());
  std::set<std::string> idle;
  for (const auto& [key, text] : table("en")) {
    if (wanted.count(key) == 0) {
      idle.insert(key);
    }
  }
  EXPECT_THAT(idle, IsEmpty());
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
  for (const auto& [key, text] : translated) {
    EXPECT_EQ(placeholders(text), placeholders(key)) << key;
  }
}

TEST_P(TranslatedTable, EndsEachTextAsTheEnglishOneEnds) {
  for (const auto& [key, text] : translated) {
    EXPECT_EQ(ending(text), ending(key)) << key;
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

void PrintTo(const User& user, std::ostream* stream) {
  *stream << user.locale;
}

class ResultsFileOf : public testing::TestWithParam<User> {
 protected:
  /// The texts that cannot be saved. All are tried together first, since syncing a file is slow.
  std::vector<std::string> unsavable(const std::vector<std::string>& texts) const {
    if (ui::writeMacRoman(file_, std::accumulate(texts.begin(), texts.end(), std::string()))) {
      return {};
    }
    std::vector<std::string> unsavable;
    std::copy_if(texts.begin(), texts.end(), std::back_inserter(unsavable),
                 [this](const std::string& text) { return !ui::writeMacRoman(file_, text); });
    return unsavable;
  }

 private:
  const TemporaryFolder folder_;
  const fs::path file_ = folder_ / "results.txt";
};

TEST_P(ResultsFileOf, CanHoldEveryTextOfTheTable) {
  std::vector<std::string> texts;
  for (const auto& [key, text] : table(GetParam().language)) {
    texts.push_back(text);
  }
  EXPECT_THAT(unsavable(texts), IsEmpty());
}

TEST_P(ResultsFileOf, CanHoldTheNumbersAndDatesOfAWholeYear) {
  const auto localization = ui::makeLocalization(GetParam().locale);
  std::vector<std::string> texts;
  for (std::int64_t day = 0; day < 366; ++day) {
    const std::chrono::system_clock::time_point moment{std::chrono::seconds(1700000000) +
                                                       std::chrono::hours(25 * day)};
    texts.push_back(localization->longDateShortTime(moment));
    texts.push_back(localization->plain(day * 1000));
    texts.push_back(localization->percent(static_cast<double>(day) / 100));
  }
  EXPECT_THAT(unsavable(texts), IsEmpty());
}

TEST(ResultsFile, CannotHoldJustAnyText) {
  const TemporaryFolder folder;
  EXPECT_FALSE(ui::writeMacRoman(folder / "results.txt", "85\u202F%"));
}

INSTANTIATE_TEST_SUITE_P(Users, ResultsFileOf,
                         testing::Values(User{"en", "en_US"}, User{"en", "en_GB"},
                                         User{"de", "de_DE"}, User{"de", "de_CH"},
                                         User{"fr", "fr_FR"}, User{"fr", "fr_CA"}),
                         [](const auto& user) { return std::string(user.param.locale); });

}  // namespace
