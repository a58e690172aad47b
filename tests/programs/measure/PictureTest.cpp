#include <gmock/gmock.h>

#include <QImage>

#include "Measured.h"
#include "Sound.h"
#include "ui/TemporaryFolder.h"

namespace {

struct Marks {
  int source = 0;
  int encoded = 0;
  int wave = 0;
};

/// Pixels of each colour in the columns from `begin` to `end`, below the head with its legend.
Marks marksIn(const QImage& picture, double begin, double end) {
  Marks marks;
  for (int y = 80; y < picture.height(); ++y) {
    for (int x = static_cast<int>(64 + 1512 * begin); x < static_cast<int>(64 + 1512 * end); ++x) {
      const QColor color = picture.pixelColor(x, y);
      if (color.red() > 200 && color.green() > 110 && color.blue() < 40) ++marks.source;
      if (color.red() > 170 && color.green() < 60 && color.blue() < 110) ++marks.encoded;
      if (color.blue() > color.red() + 40) ++marks.wave;
    }
  }
  return marks;
}

class Picture : public testing::Test {
 protected:
  QImage drawn(const Sound& sound) {
    writeSound(folder_ / "mix.wav", sound);
    const auto outcome = Program(folder_.path()).run({"--png", "out", "mix.wav"});
    EXPECT_EQ(outcome.status, 0) << outcome.err;
    const auto file = folder_ / "out/mix.aac-vbrc-256.png";
    return QImage(QString::fromStdString(file.string()), "PNG");
  }

  TemporaryFolder folder_;
};

TEST_F(Picture, ShowsOversWhereTheyAre) {
  auto sound = noise(44100, 2, 44100 * 10, 0.3F);
  for (std::size_t i = 44100 * 6; i < 44100 * 6 + 2000; ++i) sound.planes[1][i] *= 4.5F;
  const auto picture = drawn(sound);
  ASSERT_FALSE(picture.isNull());
  EXPECT_GE(picture.width(), 1200);
  const auto before = marksIn(picture, 0, 0.58);
  const auto there = marksIn(picture, 0.59, 0.63);
  const auto behind = marksIn(picture, 0.64, 1);
  EXPECT_EQ(before.source + before.encoded + behind.source + behind.encoded, 0);
  EXPECT_GT(there.source, 10);
  EXPECT_GT(there.encoded, 10);
  EXPECT_GT(before.wave, 1000);
}

TEST_F(Picture, ShowsNoOversWhereThereAreNone) {
  const auto marks = marksIn(drawn(noise(44100, 1, 44100, 0.3F)), 0, 1);
  EXPECT_EQ(marks.source + marks.encoded, 0);
  EXPECT_GT(marks.wave, 1000);
}

TEST_F(Picture, FollowsTheWaveform) {
  auto sound = silence(44100, 1, 44100 * 4);
  for (std::size_t i = 44100 * 2; i < sound.frames(); ++i) {
    sound.planes[0][i] = i % 100 < 50 ? 0.8F : -0.8F;
  }
  const auto picture = drawn(sound);
  EXPECT_LT(marksIn(picture, 0.01, 0.49).wave * 20, marksIn(picture, 0.51, 0.99).wave);
}

}  // namespace
