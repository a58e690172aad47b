#include <gmock/gmock.h>

#include "host/messages/TextWidth.h"

using namespace host;

namespace {

TEST(TextWidth, CountsTerminalColumns) {
  EXPECT_EQ(textWidth("mix.wav"), 7U);
  EXPECT_EQ(textWidth("Größe"), 5U);
  EXPECT_EQ(textWidth("音楽"), 4U);
  EXPECT_EQ(textWidth("e\u0301"), 1U);
  EXPECT_EQ(textWidth(""), 0U);
}

TEST(TextWidth, PrintsNothingThatMovesTheCursorOrIsNoText) {
  EXPECT_EQ(printable("a\nb\tc\x1b[31m"), "a?b?c?[31m");
  EXPECT_EQ(printable("a\xff\xfe z"), "a?? z");
  EXPECT_EQ(printable("cut \xc3"), "cut ?");
}

TEST(TextWidth, ElidesPathsSoThatTheNameStays) {
  EXPECT_EQ(elidedPath("album/mix.wav", 20), "album/mix.wav");
  EXPECT_EQ(elidedPath("music/album/01 mix.wav", 16), "…lbum/01 mix.wav");
  EXPECT_EQ(elidedPath("album/A very long name indeed.wav", 16), "A very l…eed.wav");
  for (std::size_t width = 0; width < 40; ++width) {
    const auto text = elidedPath("音楽/Größe eines langen Namens 音楽.flac", width);
    EXPECT_LE(textWidth(text), width);
  }
}

TEST(TextWidth, PadsByColumnsAndNotByBytes) {
  EXPECT_EQ(padded("Größe", 7), "Größe  ");
  EXPECT_EQ(padded("too long", 3), "too long");
}

}  // namespace
