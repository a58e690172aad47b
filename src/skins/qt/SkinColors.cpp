#include "skins/qt/SkinColors.h"

#include "skins/qt/QtColors.h"

namespace ui::qt {

SkinColors skinColors(const QPalette& palette, bool enabled) {
  const QPalette::ColorGroup group = enabled ? QPalette::Active : QPalette::Disabled;
  SkinColors colors;
  colors.window = palette.color(group, QPalette::Window);
  colors.text = palette.color(group, QPalette::WindowText);
  const bool dark = isDark(colors.window);

  colors.secondaryText = mixed(colors.text, colors.window, 0.34);
  colors.line = mixed(colors.window, colors.text, dark ? 0.24 : 0.16);
  colors.controlFill =
      dark ? mixed(colors.window, colors.text, 0.10) : palette.color(group, QPalette::Base);
  colors.controlBorder = mixed(colors.window, colors.text, dark ? 0.16 : 0.20);
  colors.controlText = palette.color(group, QPalette::ButtonText);
  colors.lampDark = mixed(colors.window, colors.text, 0.22);

  colors.accent = palette.color(QPalette::Active, QPalette::Highlight);
  colors.accentText = palette.color(QPalette::Active, QPalette::HighlightedText);
  if (contrast(colors.accentText, colors.accent) < kTextContrast) {
    colors.accentText = isDark(colors.accent) ? Qt::white : Qt::black;
  }
  colors.lampLit = readable(QColor(dark ? 0xFF4B3E : 0xD62222), colors.window, kShapeContrast);

  if (!enabled) {
    colors.secondaryText = mixed(colors.secondaryText, colors.window, 0.4);
    colors.controlFill = mixed(colors.controlFill, colors.window, 0.5);
    colors.accent = mixed(colors.accent, colors.window, 0.5);
  }
  return colors;
}

}  // namespace ui::qt
