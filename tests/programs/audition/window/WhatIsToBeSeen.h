#pragma once

#include <QImage>
#include <string>
#include <vector>

class QWidget;

/// Everything that a user or a screen reader can find out from the windows.
struct WhatIsToBeSeen {
  /// One line for each property and accessible text of every widget, action and menu item, visible
  /// or hidden.
  std::vector<std::string> lines;
  /// Every visible window.
  std::vector<QImage> pictures;

  friend bool operator==(const WhatIsToBeSeen&, const WhatIsToBeSeen&) = default;
};

/// Leaves out `except` and its children.
WhatIsToBeSeen whatIsToBeSeen(const QWidget* except = nullptr);

/// The lines in which the two differ, and whether their pictures differ.
std::string differencesBetween(const WhatIsToBeSeen& one, const WhatIsToBeSeen& other);
