#include "skins/qt/QtColors.h"

namespace ui::qt {

namespace {

Color plain(const QColor& color) {
  return {color.redF(), color.greenF(), color.blueF(), color.alphaF()};
}

}  // namespace

double contrast(const QColor& one, const QColor& other) {
  return ui::contrast(plain(one), plain(other));
}

bool isDark(const QColor& background) {
  return ui::isDark(plain(background));
}

QColor readable(const QColor& color, const QColor& background, double minimumContrast) {
  const Color found = ui::readable(plain(color), plain(background), minimumContrast);
  return found == plain(color)
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
