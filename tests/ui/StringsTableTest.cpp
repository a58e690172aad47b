#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "ui/StringsTable.h"
#include "ui/TemporaryFolder.h"

namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Pair;

/// The line that the parser complains about; 0 if it does not.
std::size_t faultyLine(std::string_view text) {
  try {
    ui::parseStringsTable(text);
    return 0;
  } catch (const ui::StringsTableError& error) {
    return error.line();
  }
}

std::string fault(std::string_view text) {
  try {
    ui::parseStringsTable(text);
    return "none";
  } catch (const ui::StringsTableError& error) {
    return error.what();
  }
}

TEST(StringsTable, ReadsEveryEntry) {
  EXPECT_THAT(ui::parseStringsTable("\"Stop\" = \"Beenden\";\n\"Resume\"=\"Fortsetzen\";"),
              ElementsAre(Pair("Resume", "Fortsetzen"), Pair("Stop", "Beenden")));
}

TEST(StringsTable, IsEmptyForAnEmptyText) {
  EXPECT_THAT(ui::parseStringsTable(""), IsEmpty());
  EXPECT_THAT(ui::parseStringsTable("\xEF\xBB\xBF"), IsEmpty());
  EXPECT_THAT(ui::parseStringsTable(" \t\r\n\f\v/* nothing */ // at all"), IsEmpty());
}

TEST(StringsTable, SkipsAByteOrderMark) {
  EXPECT_THAT(ui::parseStringsTable("\xEF\xBB\xBF\"a\" = \"b\";"), ElementsAre(Pair("a", "b")));
}

TEST(StringsTable, SkipsCommentsBetweenAllParts) {
  EXPECT_THAT(ui::parseStringsTable("/* one * / \" */\"a\"// two\n=/**/\"b\"/* ; */;// three\r"),
              ElementsAre(Pair("a", "b")));
}

TEST(StringsTable, KeepsCommentMarksInsideQuotes) {
  EXPECT_THAT(ui::parseStringsTable("\"a // b\" = \"/* c */\";"),
              ElementsAre(Pair("a // b", "/* c */")));
}

TEST(StringsTable, ReplacesEscapes) {
  EXPECT_THAT(ui::parseStringsTable(R"("q" = "\"\\\n\t\r";)"),
              ElementsAre(Pair("q", "\"\\\n\t\r")));
}

TEST(StringsTable, ReplacesEscapedCodeUnits) {
  EXPECT_THAT(ui::parseStringsTable(R"("\U0041" = "\U00e9\U00E9\U2013";)"),
              ElementsAre(Pair("A", "éé–")));
}

TEST(StringsTable, JoinsAnEscapedSurrogatePair) {
  EXPECT_THAT(ui::parseStringsTable(R"("clef" = "\UD834\UDD1E";)"),
              ElementsAre(Pair("clef", "\xF0\x9D\x84\x9E")));
}

TEST(StringsTable, TakesBareKeysAndTexts) {
  EXPECT_THAT(ui::parseStringsTable("key_1.a-b$ = Text2;"),
              ElementsAre(Pair("key_1.a-b$", "Text2")));
}

TEST(StringsTable, LetsAnEntryWithoutATextStandForItself) {
  EXPECT_THAT(ui::parseStringsTable("\"Stop\";"), ElementsAre(Pair("Stop", "Stop")));
}

TEST(StringsTable, KeepsAnEmptyTextAndAQuotedLineEnd) {
  EXPECT_THAT(ui::parseStringsTable("\"\" = \"\"; \"a\" = \"b\nc\";"),
              ElementsAre(Pair("", ""), Pair("a", "b\nc")));
}

TEST(StringsTable, NamesTheLineOfAMissingSemicolon) {
  EXPECT_EQ(faultyLine("\"a\" = \"b\";\n\"c\" = \"d\"\n\"e\" = \"f\";"), 3U);
  EXPECT_EQ(faultyLine("\"a\" = \"b\""), 1U);
}

TEST(StringsTable, NamesTheLineOfAMissingKeyOrText) {
  EXPECT_EQ(faultyLine("\n\n= \"b\";"), 3U);
  EXPECT_EQ(faultyLine("\"a\" =\n;"), 2U);
  EXPECT_EQ(faultyLine("\"a\" ="), 1U);
  EXPECT_EQ(faultyLine("{ \"a\" = \"b\"; }"), 1U);
}

TEST(StringsTable, NamesTheLineWhereAnUnclosedQuoteOrCommentBegins) {
  EXPECT_EQ(faultyLine("\"a\" = \"b\";\n\"c\" = \"d;\n\n"), 2U);
  EXPECT_EQ(faultyLine("\n\n\n/* never\n\nclosed"), 4U);
  EXPECT_EQ(faultyLine("\"a\\"), 1U);
}

TEST(StringsTable, CountsLinesOfAllThreeKinds) {
  EXPECT_EQ(faultyLine("\n\n?"), 3U);
  EXPECT_EQ(faultyLine("\r\n\r\n?"), 3U);
  EXPECT_EQ(faultyLine("\r\r?"), 3U);
  EXPECT_EQ(faultyLine("/* \r\n \n \r */ ?"), 4U);
}

TEST(StringsTable, RefusesUnknownOrBrokenEscapes) {
  for (const char* text : {R"("\q";)", R"("\U12";)", R"("\U12g4";)", R"("\UD834";)", R"("\UDD1E";)",
                           R"("\UD834\U0041";)", R"("\UD834\n";)"}) {
    EXPECT_EQ(faultyLine(text), 1U) << text;
  }
}

TEST(StringsTable, RefusesBytesThatAreNotUtf8) {
  EXPECT_EQ(faultyLine("\"a\" = \"b\";\r\n\"Gr\xF6\xDF"
                       "e\" = \"c\";"),
            2U);
  EXPECT_EQ(faultyLine("\xFF\xFE\"\0a\0"), 1U);
  EXPECT_EQ(faultyLine("\"\xED\xA0\x80\";"), 1U) << "an encoded surrogate";
  EXPECT_EQ(faultyLine("/* \xC3"), 1U);
}

TEST(StringsTable, RefusesAKeyThatStandsTwice) {
  EXPECT_EQ(fault("\"a\" = \"b\";\n\"a\" = \"c\";"), "line 2: the key \"a\" stands twice");
}

TEST(StringsTable, IsReadFromAFile) {
  const TemporaryFolder folder;
  writeBytes(folder / "Some.strings", "a = b;");
  EXPECT_THAT(ui::readStringsTable(folder / "Some.strings"), ElementsAre(Pair("a", "b")));
}

TEST(StringsTable, NamesTheFileAndLineThatIsBroken) {
  const TemporaryFolder folder;
  writeBytes(folder / "Some.strings", "a = b;\nc");
  try {
    ui::readStringsTable(folder / "Some.strings");
    FAIL() << "no exception";
  } catch (const std::runtime_error& error) {
    EXPECT_THAT(error.what(), HasSubstr("Some.strings: line 2: a semicolon is missing"));
  }
}

TEST(StringsTable, RefusesAMissingFileAndAFolder) {
  const TemporaryFolder folder;
  EXPECT_THROW(ui::readStringsTable(folder / "Some.strings"), std::runtime_error);
  EXPECT_THROW(ui::readStringsTable(folder.path()), std::runtime_error);
}

}  // namespace
