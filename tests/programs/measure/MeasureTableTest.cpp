#include <gmock/gmock.h>

#include <algorithm>
#include <sstream>

#include "host/messages/TextWidth.h"
#include "programs/measure/Table.h"

using namespace host::measure;
using host::elidedInTheMiddle;
using host::textWidth;
using testing::EndsWith;
using testing::HasSubstr;
using testing::Not;

namespace {

Row row(const std::string& file) {
  Row result;
  result.readings.file = file;
  result.readings.format = {44100, 2};
  result.readings.setting = {0, 1, 14};
  result.readings.bitRateKbps = 253.14;
  result.readings.source = {{-0.1, 0.4, 0, 12}, {-0.2, 0.3, 1, 3}};
  result.readings.encoded = {{0.9, 1.2, 31, 57}, {0.7, 1.1, 18, 44}};
  return result;
}

TEST(Table, IsAlignedUnderAHeadThatNamesTheUnits) {
  const Table table({"mix.wav", "album/01 opening.wav"}, 0, false, false, false);
  EXPECT_EQ(table.head() + table.lines(row("mix.wav")) + table.lines(row("album/01 opening.wav")),
            "                                           Rate                        Source         "
            "              Encoded\n"
            "File                  Encoder            kbit/s    dBFS  clips    dBTP  overs    dBFS "
            " clips    dBTP  overs\n"
            "mix.wav               AAC VBRC 256        253.1   -0.10      1   +0.40     15   +0.90 "
            "    49   +1.20    101  OVER\n"
            "album/01 opening.wav  AAC VBRC 256        253.1   -0.10      1   +0.40     15   +0.90 "
            "    49   +1.20    101  OVER\n");
}

TEST(Table, KeepsItsColumnsForNamesOfAnyScript) {
  const std::vector<std::string> files = {"Größe.wav", "音楽.wav", "mix.wav",
                                          std::string(200, 'x') + ".wav"};
  const Table table(files, 0, false, false, false);
  const auto width = textWidth(table.lines(row("mix.wav")));
  for (const auto& file : files) EXPECT_EQ(textWidth(table.lines(row(file))), width) << file;
}

/// Columns of the widest line.
std::size_t widest(const std::string& lines) {
  std::size_t width = 0;
  std::istringstream stream(lines);
  for (std::string line; std::getline(stream, line);) width = std::max(width, textWidth(line));
  return width;
}

TEST(Table, FitsTheTerminalByElidingNames) {
  const std::string file = "a/very/long/path/to/an/album/01 opening.wav";
  const Table table({file}, 120, true, false, false);
  auto with = row(file);
  with.trim = Trim{4, false, 5};
  EXPECT_LE(widest(table.head() + table.lines(with)), 120U);
  EXPECT_THAT(table.lines(with), HasSubstr("01 opening.wav"));
  EXPECT_EQ(std::ranges::count(table.lines(with), '\n'), 1);
}

TEST(Table, BreaksItsLinesWhereATerminalIsNarrow) {
  const Table table({"album/01 opening.wav"}, 80, false, false, false);
  EXPECT_EQ(table.head() + table.lines(row("album/01 opening.wav")),
            "                                           Rate\n"
            "File                  Encoder            kbit/s\n"
            "                          Source                       Encoded\n"
            "      dBFS  clips    dBTP  overs    dBFS  clips    dBTP  overs\n"
            "album/01 opening.wav  AAC VBRC 256        253.1\n"
            "     -0.10      1   +0.40     15   +0.90     49   +1.20    101  OVER\n");
}

TEST(Table, KeepsOneLineInANarrowTerminalForShortNames) {
  const Table table({"mix.wav"}, 100, false, false, false);
  EXPECT_EQ(table.lines(row("mix.wav")),
            Table({"mix.wav"}, 0, false, false, false).lines(row("mix.wav")));
  EXPECT_LE(widest(table.head() + table.lines(row("mix.wav"))), 100U);
}

class NarrowTable : public testing::TestWithParam<std::size_t> {};

TEST_P(NarrowTable, ShowsEveryFigureWhateverTheName) {
  const auto width = GetParam();
  const std::string words = "Größe einer 音楽 in vielen langen Worten ";
  for (std::size_t length = 1; length < 120; length += 7) {
    auto file = elidedInTheMiddle(words + words + words, length);
    file += ".wav";
    for (const bool withTrim : {false, true}) {
      auto with = row(file);
      with.readings.setting = {2, 1, 16};
      with.readings.source[0].samplePeakDbfs = with.readings.source[1].samplePeakDbfs = -144;
      with.readings.encoded[0].sampleClips = 123456;
      with.trim = Trim{144, false, 5};
      const Table table({file, "mix.wav"}, width, withTrim, false, false);
      const auto lines = table.lines(with);
      EXPECT_LE(widest(table.head() + lines), width) << lines;
      for (const char* const figure : {"HEv2 VBRC 320", "253.1", "-144.00", "+0.40", "15", "+0.90",
                                       "123474", "+1.20", "101", "OVER"}) {
        EXPECT_THAT(lines, HasSubstr(figure));
      }
      EXPECT_EQ(lines.find("-14.4") != std::string::npos, withTrim);
      EXPECT_THAT(lines, HasSubstr("wav "));
    }
  }
}

INSTANTIATE_TEST_SUITE_P(Columns, NarrowTable, testing::Values(80, 100));

TEST(Table, HasAColumnForTrims) {
  const Table table({"mix.wav"}, 0, true, false, false);
  EXPECT_THAT(table.head(), HasSubstr("Trim"));
  auto with = row("mix.wav");
  with.trim = Trim{14, false, 5};
  EXPECT_THAT(table.lines(with), HasSubstr("  -1.4 "));
  with.trim = Trim{0, false, 1};
  EXPECT_THAT(table.lines(with), HasSubstr("   0.0 "));
}

TEST(Table, SaysOverOnlyWhereTheEncodedSignalIs) {
  const Table table({"mix.wav"}, 0, false, false, false);
  auto clean = row("mix.wav");
  for (auto& channel : clean.readings.encoded) channel.sampleClips = 0;
  EXPECT_THAT(table.lines(clean), Not(HasSubstr("OVER")));
  const Table strict({"mix.wav"}, 0, false, true, false);
  EXPECT_THAT(strict.lines(clean), HasSubstr("OVER"));
}

TEST(Table, IsColoredOnlyWhereItMayBe) {
  EXPECT_THAT(Table({"mix.wav"}, 0, false, false, true).lines(row("mix.wav")),
              EndsWith("\x1b[1;31mOVER\x1b[0m\n"));
  EXPECT_THAT(Table({"mix.wav"}, 0, false, false, false).lines(row("mix.wav")),
              Not(HasSubstr("\x1b")));
}

}  // namespace
