#include "ui/ReadableColor.h"

#include <algorithm>
#include <cmath>

namespace ui {

namespace {

/// sRGB to linear light (IEC 61966-2-1).
double linear(double part) {
  return part <= 0.04045 ? part / 12.92 : std::pow((part + 0.055) / 1.055, 2.4);
}

double luminance(const Color& color) {
  return 0.2126 * linear(color.red) + 0.7152 * linear(color.green) + 0.0722 * linear(color.blue);
}

double largest(const Color& color) {
  return std::max({color.red, color.green, color.blue});
}

double smallest(const Color& color) {
  return std::min({color.red, color.green, color.blue});
}

double lightness(const Color& color) {
  return (largest(color) + smallest(color)) / 2.0;
}

Color asShown(const Color& color) {
  const auto rounded = [](double part) { return std::round(part * 255.0) / 255.0; };
  return {rounded(color.red), rounded(color.green), rounded(color.blue), color.alpha};
}

/// The same hue and saturation (in HSL) at another lightness.
Color withLightness(const Color& color, double wanted) {
  const double was = lightness(color);
  const double room = std::min(was, 1.0 - was);
  const double newRoom = std::min(wanted, 1.0 - wanted);
  const double scale = room > 0.0 ? newRoom / room : 0.0;
  const auto part = [&](double value) {
    return std::clamp(wanted + (value - was) * scale, 0.0, 1.0);
  };
  return asShown({part(color.red), part(color.green), part(color.blue), color.alpha});
}

}  // namespace

double contrast(const Color& one, const Color& other) {
  const auto [dark, light] = std::minmax({luminance(one), luminance(other)});
  return (light + 0.05) / (dark + 0.05);
}

bool isDark(const Color& background) {
  return contrast(background, {1, 1, 1, 1}) > contrast(background, {0, 0, 0, 1});
}

Color readable(const Color& color, const Color& background, double minimumContrast) {
  if (contrast(color, background) >= minimumContrast) {
    return color;
  }
  // Black or white stands out the most; bisect the way there until the step is invisible.
  double tooClose = lightness(color);
  double farEnough = isDark(background) ? 1.0 : 0.0;
  while (std::abs(farEnough - tooClose) > 1.0 / 512.0) {
    const double middle = (tooClose + farEnough) / 2.0;
    const Color candidate = withLightness(color, middle);
    (contrast(candidate, background) >= minimumContrast ? farEnough : tooClose) = middle;
  }
  return withLightness(color, farEnough);
}

}  // namespace ui
