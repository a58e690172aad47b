#pragma once

#include <QColor>

#include "ui/ReadableColor.h"

namespace ui::qt {

using ui::kShapeContrast;
using ui::kTextContrast;

/// Ratio of the two colours' relative luminances, from 1 to 21 (WCAG 2.1, "contrast ratio").
double contrast(const QColor& one, const QColor& other);

/// The colour itself if its contrast with the background is sufficient; otherwise one of the same
/// hue, just light enough for a dark background or dark enough for a light one.
QColor readable(const QColor& color, const QColor& background, double minimumContrast);

/// The colour with a share of `over`, from 0 to 1, mixed in. The result is opaque.
QColor mixed(const QColor& color, const QColor& over, double share);

/// Whether light text stands out from the background better than dark text.
bool isDark(const QColor& background);

}  // namespace ui::qt
