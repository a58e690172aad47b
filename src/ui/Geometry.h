#pragma once

namespace ui {

/// In points.
struct Size {
  double width = 0;
  double height = 0;
  friend bool operator==(const Size&, const Size&) = default;
};

/// In points from the enclosing view's lower-left corner, y upwards.
struct Point {
  double x = 0;
  double y = 0;
  friend bool operator==(const Point&, const Point&) = default;
};

}  // namespace ui
