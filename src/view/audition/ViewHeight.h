#pragma once

namespace velk {

/// The heights that the view takes, in points; each stands for what is shown.
inline constexpr double kCollapsedAuditionHeight = 195.0;
inline constexpr double kExpandedAuditionHeight = 369.0;
inline constexpr double kListeningTestHeight = 255.0;

constexpr double auditionHeight(bool detailsShown) {
  return detailsShown ? kExpandedAuditionHeight : kCollapsedAuditionHeight;
}

/// Where the audition page's help button sits, from the lower edge of a page that is laid out for
/// the expanded height, so that it keeps the same distance to the lower edge of the part that is
/// visible at `height`. Points.
constexpr double helpButtonY(double height) {
  constexpr double kMargin = 7.0;
  return kExpandedAuditionHeight - height + kMargin;
}

}  // namespace velk
