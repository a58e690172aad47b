#pragma once

#include <QColor>

namespace ui::qt {

/// Contrast of text that everybody can read, and of shapes, after WCAG 2.1, 1.4.3 and 1.4.11.
inline constexpr double kTextContrast = 4.5;
inline constexpr double kShapeContrast = 3.0;

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
