#include <gtest/gtest.h>

#include "skins/qt/QtColors.h"
#include "skins/qt/SkinColors.h"

namespace {

using ui::qt::contrast;
using ui::qt::kTextContrast;
using ui::qt::readable;

const QColor kDarkRed = QColor::fromRgbF(0.5F, 0, 0);
const QColor kDarkGreen = QColor::fromRgbF(0, 0.5F, 0);
const QColor kDarkWindow = 0x22252A;
const QColor kLightWindow = 0xF3F4F6;

TEST(Contrast, IsTheRatioOfLuminances) {
  EXPECT_NEAR(contrast(Qt::black, Qt::white), 21.0, 1e-9);
  EXPECT_NEAR(contrast(Qt::white, Qt::black), 21.0, 1e-9);
  EXPECT_NEAR(contrast(0x123456, 0x123456), 1.0, 1e-9);
  // On white, the first grey just misses 4.5:1 and the next darker one reaches it.
  EXPECT_NEAR(contrast(0x777777, Qt::white), 4.478, 0.001);
  EXPECT_NEAR(contrast(0x767676, Qt::white), 4.542, 0.001);
}

TEST(ReadableColor, LeavesAColourWithEnoughContrast) {
  EXPECT_EQ(readable(kDarkRed, kLightWindow, kTextContrast), kDarkRed);
  EXPECT_EQ(readable(kDarkGreen, kLightWindow, kTextContrast), kDarkGreen);
}

TEST(ReadableColor, LightensDarkTextOnADarkBackgroundAndKeepsItsHue) {
  for (const QColor& color : {kDarkRed, kDarkGreen}) {
    for (const QColor& window : {kDarkWindow, QColor(Qt::black), QColor(0x3C3F46)}) {
      const QColor shown = readable(color, window, kTextContrast);
      EXPECT_GE(contrast(shown, window), kTextContrast);
      EXPECT_NEAR(shown.hslHueF(), color.hslHueF(), 0.01);
      EXPECT_GT(shown.lightness(), color.lightness());
      EXPECT_LT(contrast(shown, window), kTextContrast * 1.2) << "lighter than it needs to be";
    }
  }
}

TEST(ReadableColor, DarkensLightTextOnALightBackground) {
  const QColor shown = readable(0xFFE08A, kLightWindow, kTextContrast);
  EXPECT_GE(contrast(shown, kLightWindow), kTextContrast);
  EXPECT_LT(shown.lightness(), QColor(0xFFE08A).lightness());
}

TEST(SkinColors, AreReadableOnLightAndOnDarkPalettes) {
  for (const QColor& window : {kDarkWindow, kLightWindow, QColor(Qt::black), QColor(Qt::white)}) {
    QPalette palette(window, window);
    palette.setColor(QPalette::Highlight, 0x8AB4F8);
    palette.setColor(QPalette::HighlightedText, Qt::white);
    const ui::qt::SkinColors colors = ui::qt::skinColors(palette);
    EXPECT_GE(contrast(colors.secondaryText, colors.window), kTextContrast);
    EXPECT_GE(contrast(colors.accentText, colors.accent), kTextContrast);
    EXPECT_GE(contrast(colors.controlText, colors.controlFill), kTextContrast);
    EXPECT_GE(contrast(colors.lampLit, colors.window), ui::qt::kShapeContrast);
  }
}

}  // namespace
