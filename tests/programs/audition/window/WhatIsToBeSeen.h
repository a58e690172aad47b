#pragma once

#include <QImage>
#include <string>
#include <vector>

class QWidget;

/// All that a user, or a program that reads the screen for him, can find out from the windows.
struct WhatIsToBeSeen {
  /// A line for each property and each accessible text of each widget, action and menu item, shown
  /// or hidden.
  std::vector<std::string> lines;
  /// Every window that is shown.
  std::vector<QImage> pictures;

  friend bool operator==(const WhatIsToBeSeen&, const WhatIsToBeSeen&) = default;
};

/// `except` and what is in it are left out.
WhatIsToBeSeen whatIsToBeSeen(const QWidget* except = nullptr);

/// The lines in which the two differ, and whether their pictures do.
std::string differencesBetween(const WhatIsToBeSeen& one, const WhatIsToBeSeen& other);
