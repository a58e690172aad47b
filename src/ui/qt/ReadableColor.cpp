#include "ui/qt/ReadableColor.h"

#include <algorithm>
#include <cmath>

namespace ui::qt {

namespace {

/// sRGB to linear light (IEC 61966-2-1).
double linear(double part) {
  return part <= 0.04045 ? part / 12.92 : std::pow((part + 0.055) / 1.055, 2.4);
}

double luminance(const QColor& color) {
  return 0.2126 * linear(color.redF()) + 0.7152 * linear(color.greenF()) +
         0.0722 * linear(color.blueF());
}

QColor withLightness(const QColor& color, double lightness) {
  return QColor::fromHslF(std::max(color.hslHueF(), 0.0F), color.hslSaturationF(),
                          static_cast<float>(lightness));
}

}  // namespace

double contrast(const QColor& one, const QColor& other) {
  const auto [dark, light] = std::minmax({luminance(one), luminance(other)});
  return (light + 0.05) / (dark + 0.05);
}

bool isDark(const QColor& background) {
  return contrast(background, Qt::white) > contrast(background, Qt::black);
}

QColor readable(const QColor& color, const QColor& background, double minimumContrast) {
  if (contrast(color, background) >= minimumContrast) {
    return color;
  }
  // The extreme stands out as far as anything can; halve the way to it until the step is invisible.
  double tooClose = color.lightnessF();
  double farEnough = isDark(background) ? 1.0 : 0.0;
  while (std::abs(farEnough - tooClose) > 1.0 / 512.0) {
    const double middle = (tooClose + farEnough) / 2.0;
    // Rounded to what a device shows, so that the promise holds for the pixels.
    const QColor candidate = QColor::fromRgb(withLightness(color, middle).rgb());
    (contrast(candidate, background) >= minimumContrast ? farEnough : tooClose) = middle;
  }
  return QColor::fromRgb(withLightness(color, farEnough).rgb());
}

QColor mixed(const QColor& color, const QColor& over, double share) {
  const auto part = [share](float below, float above) {
    return static_cast<float>(below * (1.0 - share) + above * share);
  };
  return QColor::fromRgbF(part(color.redF(), over.redF()), part(color.greenF(), over.greenF()),
                          part(color.blueF(), over.blueF()));
}

}  // namespace ui::qt
