#pragma once

#include <QColor>

#include "ui/ReadableColor.h"

namespace ui::qt {

using ui::kShapeContrast;
using ui::kTextContrast;

/// Ratio of the two colours' relative luminances, from 1 to 21 (WCAG 2.1, "contrast ratio").
double contrast(const QColor& one, const QColor& other);

/// The colour itself if it stands out enough from the background; else one of the same hue, made
/// just light enough for a dark background or dark enough for a light one.
QColor readable(const QColor& color, const QColor& background, double minimumContrast);

/// `share` of `over` laid over the colour, from 0 to 1.
QColor mixed(const QColor& color, const QColor& over, double share);

/// Whether light text is what stands out from it.
bool isDark(const QColor& background);

}  // namespace ui::qt
