#pragma once

namespace ui {

/// Points.
struct Size {
  double width = 0;
  double height = 0;
  friend bool operator==(const Size&, const Size&) = default;
};

/// Points, from the lower left corner of the enclosing view, y upwards.
struct Point {
  double x = 0;
  double y = 0;
  friend bool operator==(const Point&, const Point&) = default;
};

}  // namespace ui
