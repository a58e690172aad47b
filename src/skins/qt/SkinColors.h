#pragma once

#include <QColor>
#include <QPalette>

namespace ui::qt {

/// The colours that the skin paints with. They derive from the system's palette, except the red of
/// a lit lamp.
struct SkinColors {
  QColor window;
  QColor text;
  QColor secondaryText;
  /// Hairlines between the parts of a page.
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
