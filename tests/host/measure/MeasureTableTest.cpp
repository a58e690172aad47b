#include <gmock/gmock.h>

#include <sstream>

#include "host/measure/Table.h"
#include "host/measure/TextWidth.h"

using namespace host::measure;
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
  EXPECT_EQ(table.head() + table.line(row("mix.wav")) + table.line(row("album/01 opening.wav")),
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
  const auto width = textWidth(table.line(row("mix.wav")));
  for (const auto& file : files) EXPECT_EQ(textWidth(table.line(row(file))), width) << file;
}

TEST(Table, FitsTheTerminalByElidingNames) {
  const std::string file = "a/very/long/path/to/an/album/01 opening.wav";
  const Table table({file}, 120, true, false, false);
  auto with = row(file);
  with.trim = Trim{4, false, 5};
  // The line's end counts as a column.
  EXPECT_LE(textWidth(table.line(with)), 121U);
  EXPECT_THAT(table.line(with), HasSubstr("01 opening.wav"));
}

TEST(Table, HasAColumnForTrims) {
  const Table table({"mix.wav"}, 0, true, false, false);
  EXPECT_THAT(table.head(), HasSubstr("Trim"));
  auto with = row("mix.wav");
  with.trim = Trim{14, false, 5};
  EXPECT_THAT(table.line(with), HasSubstr("  -1.4 "));
  with.trim = Trim{0, false, 1};
  EXPECT_THAT(table.line(with), HasSubstr("   0.0 "));
}

TEST(Table, SaysOverOnlyWhereTheEncodedSignalIs) {
  const Table table({"mix.wav"}, 0, false, false, false);
  auto clean = row("mix.wav");
  for (auto& channel : clean.readings.encoded) channel.sampleClips = 0;
  EXPECT_THAT(table.line(clean), Not(HasSubstr("OVER")));
  const Table strict({"mix.wav"}, 0, false, true, false);
  EXPECT_THAT(strict.line(clean), HasSubstr("OVER"));
}

TEST(Table, IsColoredOnlyWhereItMayBe) {
  EXPECT_THAT(Table({"mix.wav"}, 0, false, false, true).line(row("mix.wav")),
              EndsWith("\x1b[1;31mOVER\x1b[0m\n"));
  EXPECT_THAT(Table({"mix.wav"}, 0, false, false, false).line(row("mix.wav")),
              Not(HasSubstr("\x1b")));
}

}  // namespace
