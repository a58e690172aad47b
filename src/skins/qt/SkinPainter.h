#pragma once

#include <QPainter>
#include <QPalette>
#include <QStyleOption>

#include "skins/qt/SkinColors.h"

class QWidget;

/// Painting of each kind of control, within `option.rect`.
namespace ui::qt {

enum class ButtonLook { Plain, FirstSegment, LastSegment, Help, Disclosure };
/// Reads the widget's dynamic property `look`; `Plain` without one or without a widget.
ButtonLook buttonLook(const QWidget* widget);

/// In pixels: how much wider than its text a tab's underline is, and the gap to the next tab.
inline constexpr int kTabPadding = 6;
inline constexpr int kTabGap = 18;

void drawButton(QPainter& painter, const QStyleOptionButton& option, ButtonLook look);
void drawPopUpButton(QPainter& painter, const QStyleOptionComboBox& option, const QRect& arrow);
void drawPopUpText(QPainter& painter, const QStyleOptionComboBox& option, const QRect& rect,
                   const QFont& font);
/// An item of a pop-up button's menu; `padding` is the space on each side, in pixels.
void drawMenuItem(QPainter& painter, const QStyleOptionMenuItem& option, int padding);
void drawTab(QPainter& painter, const QStyleOptionTab& option);
void drawSlider(QPainter& painter, const QStyleOptionSlider& option, const QRect& handle);
void drawCheckMark(QPainter& painter, const QStyleOption& option);
/// The frame around a label that shows a key.
void drawKeyCap(QPainter& painter, const QStyleOption& option);
void drawHairline(QPainter& painter, const QRect& rect, const QPalette& palette);
void drawFocusRing(QPainter& painter, const QRect& rect, const QPalette& palette);

}  // namespace ui::qt
