#include "skins/qt/SkinStyle.h"

#include <QFontMetrics>
#include <QStyleFactory>
#include <QStyleOption>
#include <QWidget>
#include <algorithm>
#include <cmath>

#include "skins/qt/SkinPainter.h"

namespace ui::qt {

namespace {

constexpr int kControlHeight = 28;
constexpr int kButtonPadding = 14;
constexpr int kSegmentPadding = 20;
constexpr int kSegmentWidth = 84;
constexpr int kRoundButton = 24;
constexpr QSize kTriangleButton(14, 20);
constexpr int kCheckBoxHeight = 22;
constexpr int kTabHeight = 32;
constexpr int kComboPadding = 10;
constexpr int kComboArrow = 26;
constexpr int kSeparatorHeight = 9;
constexpr double kSmallestFont = 0.75;

QFont bold(const QWidget* widget) {
  QFont font = widget != nullptr ? widget->font() : QFont();
  font.setBold(true);
  return font;
}

}  // namespace

QFont fittingFont(const QFont& font, const QString& text, int width) {
  QFont fitting = font;
  const int smallest = static_cast<int>(std::ceil(font.pixelSize() * kSmallestFont));
  while (QFontMetrics(fitting).horizontalAdvance(text) > width && fitting.pixelSize() > smallest) {
    fitting.setPixelSize(fitting.pixelSize() - 1);
  }
  return fitting;
}

SkinStyle::SkinStyle() : QProxyStyle(QStyleFactory::create("Fusion")) {}

void SkinStyle::polish(QWidget* widget) {
  QProxyStyle::polish(widget);
  if (widget->focusPolicy() != Qt::NoFocus) {
    widget->setAttribute(Qt::WA_Hover);
  }
}

void SkinStyle::drawControl(ControlElement element, const QStyleOption* option, QPainter* painter,
                            const QWidget* widget) const {
  switch (element) {
    case CE_PushButton:
      if (const auto* button = qstyleoption_cast<const QStyleOptionButton*>(option)) {
        drawButton(*painter, *button, buttonLook(widget));
        return;
      }
      break;
    case CE_ComboBoxLabel:
      if (const auto* box = qstyleoption_cast<const QStyleOptionComboBox*>(option)) {
        const QRect text = subControlRect(CC_ComboBox, box, SC_ComboBoxEditField, widget);
        drawPopUpText(*painter, *box, text,
                      fittingFont(painter->font(), box->currentText, text.width()));
        return;
      }
      break;
    case CE_MenuItem:
      if (const auto* item = qstyleoption_cast<const QStyleOptionMenuItem*>(option)) {
        drawMenuItem(*painter, *item, kComboPadding);
        return;
      }
      break;
    case CE_TabBarTab:
      if (const auto* tab = qstyleoption_cast<const QStyleOptionTab*>(option)) {
        drawTab(*painter, *tab);
        return;
      }
      break;
    case CE_ShapedFrame:
      if (const auto* frame = qstyleoption_cast<const QStyleOptionFrame*>(option);
          frame != nullptr && frame->frameShape == QFrame::HLine) {
        drawHairline(*painter, option->rect, option->palette);
        return;
      } else if (frame != nullptr && frame->frameShape == QFrame::Box) {
        drawKeyCap(*painter, *option);
        return;
      }
      break;
    default:
      break;
  }
  QProxyStyle::drawControl(element, option, painter, widget);
}

void SkinStyle::drawComplexControl(ComplexControl control, const QStyleOptionComplex* option,
                                   QPainter* painter, const QWidget* widget) const {
  if (const auto* box = qstyleoption_cast<const QStyleOptionComboBox*>(option);
      control == CC_ComboBox && box != nullptr) {
    drawPopUpButton(*painter, *box, subControlRect(CC_ComboBox, box, SC_ComboBoxArrow, widget));
    return;
  }
  if (const auto* slider = qstyleoption_cast<const QStyleOptionSlider*>(option);
      control == CC_Slider && slider != nullptr) {
    drawSlider(*painter, *slider, subControlRect(CC_Slider, slider, SC_SliderHandle, widget));
    return;
  }
  QProxyStyle::drawComplexControl(control, option, painter, widget);
}

void SkinStyle::drawPrimitive(PrimitiveElement element, const QStyleOption* option,
                              QPainter* painter, const QWidget* widget) const {
  switch (element) {
    case PE_FrameTabBarBase:
      drawHairline(*painter,
                   QRect(option->rect.left(), option->rect.bottom(), option->rect.width(), 1),
                   option->palette);
      return;
    case PE_IndicatorCheckBox:
      drawCheckMark(*painter, *option);
      return;
    case PE_FrameFocusRect:
      drawFocusRing(*painter, option->rect, option->palette);
      return;
    default:
      QProxyStyle::drawPrimitive(element, option, painter, widget);
  }
}

void SkinStyle::drawItemText(QPainter* painter, const QRect& rect, int flags,
                             const QPalette& palette, bool enabled, const QString& text,
                             QPalette::ColorRole role) const {
  if (role != QPalette::PlaceholderText) {
    QProxyStyle::drawItemText(painter, rect, flags, palette, enabled, text, role);
    return;
  }
  QPalette quiet = palette;
  quiet.setColor(QPalette::PlaceholderText, skinColors(palette, enabled).secondaryText);
  QProxyStyle::drawItemText(painter, rect, flags, quiet, enabled, text, role);
}

QSize SkinStyle::sizeFromContents(ContentsType type, const QStyleOption* option, const QSize& size,
                                  const QWidget* widget) const {
  if (const auto* button = qstyleoption_cast<const QStyleOptionButton*>(option);
      type == CT_PushButton && button != nullptr) {
    // Measured in bold, so that the width stays the same when the button is on.
    const int text = QFontMetrics(bold(widget)).horizontalAdvance(button->text);
    switch (buttonLook(widget)) {
      case ButtonLook::Help:
        return {kRoundButton, kRoundButton};
      case ButtonLook::Disclosure:
        return kTriangleButton;
      case ButtonLook::FirstSegment:
      case ButtonLook::LastSegment:
        return {std::max(text + kSegmentPadding, kSegmentWidth), kControlHeight};
      case ButtonLook::Plain:
        return {text + 2 * kButtonPadding, kControlHeight};
    }
  }
  if (const auto* box = qstyleoption_cast<const QStyleOptionButton*>(option);
      type == CT_CheckBox && box != nullptr) {
    const int mark = pixelMetric(PM_IndicatorWidth, option, widget) +
                     pixelMetric(PM_CheckBoxLabelSpacing, option, widget);
    return {mark + option->fontMetrics.horizontalAdvance(box->text) + 1, kCheckBoxHeight};
  }
  if (const auto* item = qstyleoption_cast<const QStyleOptionMenuItem*>(option);
      type == CT_MenuItem && item != nullptr &&
      item->menuItemType == QStyleOptionMenuItem::Separator) {
    return {size.width(), kSeparatorHeight};
  }
  if (type == CT_ComboBox) {
    return {size.width() + kComboPadding + kComboArrow, kControlHeight};
  }
  if (const auto* tab = qstyleoption_cast<const QStyleOptionTab*>(option);
      type == CT_TabBarTab && tab != nullptr) {
    return {QFontMetrics(bold(widget)).horizontalAdvance(tab->text) + kTabPadding + kTabGap,
            kTabHeight};
  }
  return QProxyStyle::sizeFromContents(type, option, size, widget);
}

QRect SkinStyle::subControlRect(ComplexControl control, const QStyleOptionComplex* option,
                                SubControl subControl, const QWidget* widget) const {
  if (control == CC_ComboBox) {
    const QRect all = option->rect;
    switch (subControl) {
      case SC_ComboBoxEditField:
        return visualRect(option->direction, all, all.adjusted(kComboPadding, 0, -kComboArrow, 0));
      case SC_ComboBoxArrow:
        return visualRect(
            option->direction, all,
            QRect(all.right() - kComboArrow + 1, all.top(), kComboArrow, all.height()));
      default:
        break;
    }
  }
  return QProxyStyle::subControlRect(control, option, subControl, widget);
}

int SkinStyle::pixelMetric(PixelMetric metric, const QStyleOption* option,
                           const QWidget* widget) const {
  switch (metric) {
    case PM_TabBarTabShiftVertical:
    case PM_TabBarTabShiftHorizontal:
    case PM_TabBarTabOverlap:
    case PM_TabBarBaseOverlap:
    case PM_ButtonShiftHorizontal:
    case PM_ButtonShiftVertical:
      return 0;
    case PM_IndicatorWidth:
    case PM_IndicatorHeight:
      return 16;
    case PM_CheckBoxLabelSpacing:
      return 8;
    case PM_SliderThickness:
    case PM_SliderControlThickness:
    case PM_SliderLength:
      return 18;
    default:
      return QProxyStyle::pixelMetric(metric, option, widget);
  }
}

int SkinStyle::styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                         QStyleHintReturn* returned) const {
  switch (hint) {
    case SH_Slider_AbsoluteSetButtons:
      return Qt::LeftButton;
    case SH_UnderlineShortcut:
      return 0;
    default:
      return QProxyStyle::styleHint(hint, option, widget, returned);
  }
}

}  // namespace ui::qt
