#include "skins/qt/QtColors.h"

namespace ui::qt {

namespace {

Color toColor(const QColor& color) {
  return {color.redF(), color.greenF(), color.blueF(), color.alphaF()};
}

}  // namespace

double contrast(const QColor& one, const QColor& other) {
  return ui::contrast(toColor(one), toColor(other));
}

bool isDark(const QColor& background) {
  return ui::isDark(toColor(background));
}

QColor readable(const QColor& color, const QColor& background, double minimumContrast) {
  const Color found = ui::readable(toColor(color), toColor(background), minimumContrast);
  return found == toColor(color)
             ? color
             : QColor::fromRgbF(static_cast<float>(found.red), static_cast<float>(found.green),
                                static_cast<float>(found.blue), static_cast<float>(found.alpha));
}

QColor mixed(const QColor& color, const QColor& over, double share) {
  const auto part = [share](float below, float above) {
    return static_cast<float>(below * (1.0 - share) + above * share);
  };
  return QColor::fromRgbF(part(color.redF(), over.redF()), part(color.greenF(), over.greenF()),
                          part(color.blueF(), over.blueF()));
}

}  // namespace ui::qt
