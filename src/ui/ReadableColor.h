#pragma once

#include "ui/Color.h"
#include "ui/Export.h"

namespace ui {

/// Minimum contrast of readable text and of visible shapes (WCAG 2.1, 1.4.3 and 1.4.11).
inline constexpr double kTextContrast = 4.5;
inline constexpr double kShapeContrast = 3.0;

/// Ratio of the two colours' relative luminances, from 1 to 21 (WCAG 2.1, "contrast ratio").
UI_EXPORT double contrast(const Color& one, const Color& other);

/// Whether white stands out from it more than black.
UI_EXPORT bool isDark(const Color& background);

/// The colour itself if it stands out enough from the background; otherwise one of the same hue and
/// saturation, just light enough for a dark background or dark enough for a light one, in exact
/// steps of 8 bits per channel.
UI_EXPORT Color readable(const Color& color, const Color& background, double minimumContrast);

}  // namespace ui
