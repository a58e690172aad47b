#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <cctype>
#include <filesystem>
#include <ostream>
#include <string>

#include "ui/StringsTable.h"
#include "ui/TemporaryFolder.h"

namespace {

namespace fs = std::filesystem;
using testing::HasSubstr;
using testing::Not;

const fs::path kResources = VELK_RESOURCES;

std::string onOneLine(std::string text) {
  std::replace(text.begin(), text.end(), '\n', ' ');
  return text;
}

struct Page {
  const char* language;
  const char* file;
};

void PrintTo(const Page& page, std::ostream* stream) {
  *stream << page.file;
}

class HelpPage : public testing::TestWithParam<Page> {
 protected:
  const std::string html = readBytes(kResources / "help" / GetParam().file);
  const ui::StringsTable texts = ui::readStringsTable(
      kResources / (std::string(GetParam().language) + ".lproj") / "AUDravoAACStrings.strings");
};

TEST_P(HelpPage, HasBothAnchorsThatTheViewOpens) {
  EXPECT_THAT(html, HasSubstr("<h2 id=\"audition\">" + texts.at("Audition") + "</h2>"));
  EXPECT_THAT(html, HasSubstr("<h2 id=\"listening-test\">" + texts.at("Listening Test") + "</h2>"));
}

TEST_P(HelpPage, IsWrittenInItsLanguage) {
  EXPECT_THAT(html, HasSubstr("<html lang=\"" + std::string(GetParam().language) + "\">"));
  EXPECT_THAT(html, HasSubstr("<meta charset=\"utf-8\">"));
}

TEST_P(HelpPage, CallsTheControlsAsTheViewDoes) {
  const auto lowerCase = [](std::string text) {
    std::transform(text.begin(), text.end(), text.begin(),
                   [](unsigned char c) { return static_cast<char>(std::tolower(c)); });
    return text;
  };
  // The page may break its lines within names.
  const std::string page = lowerCase(onOneLine(html));
  for (const char* control :
       {"Monitor", "Source", "Reset", "Show Details", "Learning Mode", "End Test"}) {
    EXPECT_THAT(page, HasSubstr("<strong>" + lowerCase(texts.at(control)) + "</strong>"));
  }
  for (const char* measure : {"Sample", "Inter-sample"}) {
    EXPECT_THAT(page, HasSubstr("<em>" + lowerCase(texts.at(measure)) + "</em>"));
  }
  for (const char* answer : {"A is the source", "B is the source"}) {
    EXPECT_THAT(page, HasSubstr(lowerCase(texts.at(answer)) + "</td>"));
  }
}

TEST_P(HelpPage, ShowsEveryBoundKey) {
  for (const char* key : {"1", "2", "S", "A", "B"}) {
    EXPECT_THAT(html, HasSubstr("<kbd>" + std::string(key) + "</kbd>"));
  }
  EXPECT_THAT(html, testing::ContainsRegex("<kbd>(Backspace|Rückschritt|Retour arrière)</kbd>"));
}

TEST_P(HelpPage, NeedsNothingButItself) {
  EXPECT_THAT(html, Not(HasSubstr("http")));
  EXPECT_THAT(html, Not(HasSubstr("src=")));
  EXPECT_THAT(html, Not(HasSubstr("<script")));
  EXPECT_THAT(html, Not(HasSubstr("<link")));
}

TEST_P(HelpPage, LinksOnlyToPagesThatAreThere) {
  const std::string opening = "href=\"";
  std::size_t count = 0;
  for (std::size_t at = html.find(opening); at != std::string::npos;
       at = html.find(opening, at + 1)) {
    const std::size_t start = at + opening.size();
    const std::string target = html.substr(start, html.find('"', start) - start);
    EXPECT_TRUE(fs::exists(kResources / "help" / target)) << target;
    ++count;
  }
  EXPECT_EQ(count, 2U) << "a link to each of the other languages";
}

TEST_P(HelpPage, FollowsALightOrDarkDesktop) {
  EXPECT_THAT(html, HasSubstr("color-scheme: light dark"));
  EXPECT_THAT(html, HasSubstr("@media (prefers-color-scheme: dark)"));
}

INSTANTIATE_TEST_SUITE_P(Languages, HelpPage,
                         testing::Values(Page{"en", "index.html"}, Page{"de", "index.de.html"},
                                         Page{"fr", "index.fr.html"}),
                         [](const auto& page) { return std::string(page.param.language); });

}  // namespace
