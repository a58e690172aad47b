#pragma once

#include <QProxyStyle>

namespace ui::qt {

/// The look of the views: flat controls, tabs underlined in the accent colour, the system's
/// palette. The metrics are the same on every desktop: a layout that fits on one fits on all.
///
/// A push button's dynamic property `look` may be "help" (a round button), "disclosure" (a triangle
/// that points down while on), "firstSegment" or "lastSegment" (the touching halves of a pair).
class SkinStyle final : public QProxyStyle {
 public:
  SkinStyle();

  void polish(QWidget* widget) override;
  using QProxyStyle::polish;

  void drawControl(ControlElement element, const QStyleOption* option, QPainter* painter,
                   const QWidget* widget) const override;
  void drawComplexControl(ComplexControl control, const QStyleOptionComplex* option,
                          QPainter* painter, const QWidget* widget) const override;
  void drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                     const QWidget* widget) const override;
  void drawItemText(QPainter* painter, const QRect& rect, int flags, const QPalette& palette,
                    bool enabled, const QString& text, QPalette::ColorRole role) const override;

  QSize sizeFromContents(ContentsType type, const QStyleOption* option, const QSize& size,
                         const QWidget* widget) const override;
  QRect subControlRect(ComplexControl control, const QStyleOptionComplex* option,
                       SubControl subControl, const QWidget* widget) const override;
  int pixelMetric(PixelMetric metric, const QStyleOption* option,
                  const QWidget* widget) const override;
  int styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                QStyleHintReturn* returned) const override;
};

/// A font in which the whole text fits the width: the font itself or one shrunk as far as
/// necessary, but never below three quarters of its size.
QFont fittingFont(const QFont& font, const QString& text, int width);

}  // namespace ui::qt
