#pragma once

namespace ui {

/// A device colour; each component is from 0 to 1.
struct Color {
  double red = 0;
  double green = 0;
  double blue = 0;
  double alpha = 1;

  static constexpr Color deviceRGB(double red, double green, double blue, double alpha) {
    return {red, green, blue, alpha};
  }
  /// The ordinary text colour; a dark palette shows its own text colour instead.
  static constexpr Color black() { return {0, 0, 0, 1}; }

  friend bool operator==(const Color&, const Color&) = default;
};

}  // namespace ui
