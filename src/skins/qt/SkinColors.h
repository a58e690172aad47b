#pragma once

#include <QColor>
#include <QPalette>

namespace ui::qt {

/// The few colours that the skin paints with, all taken from the system's palette.
struct SkinColors {
  QColor window;
  QColor text;
  QColor secondaryText;
  /// Hairlines between parts of a page.
  QColor line;
  QColor controlFill;
  QColor controlBorder;
  QColor controlText;
  QColor accent;
  QColor accentText;
  QColor lampDark;
  QColor lampLit;
};

SkinColors skinColors(const QPalette& palette, bool enabled = true);

}  // namespace ui::qt
