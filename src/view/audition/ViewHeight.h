#pragma once

namespace velk {

/// The view's three heights in points; each stands for what is shown.
inline constexpr double kCollapsedAuditionHeight = 195.0;
inline constexpr double kExpandedAuditionHeight = 369.0;
inline constexpr double kListeningTestHeight = 255.0;

constexpr double auditionHeight(bool detailsShown) {
  return detailsShown ? kExpandedAuditionHeight : kCollapsedAuditionHeight;
}

/// Distance in points of the audition page's help button from the lower edge of the page, which is
/// laid out for the expanded height. It keeps the button at a fixed distance from the lower edge of
/// the part that is visible at `height`.
constexpr double helpButtonY(double height) {
  constexpr double kMargin = 7.0;
  return kExpandedAuditionHeight - height + kMargin;
}

}  // namespace velk
