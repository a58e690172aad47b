#include "skins/qt/SkinPainter.h"

#include <QPainterPath>
#include <QVariant>
#include <QWidget>
#include <algorithm>

#include "skins/qt/QtColors.h"

namespace ui::qt {

namespace {

constexpr double kRadius = 5;
constexpr double kFocusWidth = 2;

bool isOn(const QStyleOption& option) {
  return option.state.testFlag(QStyle::State_On);
}
bool isEnabled(const QStyleOption& option) {
  return option.state.testFlag(QStyle::State_Enabled);
}
bool isPressed(const QStyleOption& option) {
  return option.state.testFlag(QStyle::State_Sunken);
}
bool isHovered(const QStyleOption& option) {
  return isEnabled(option) && option.state.testFlag(QStyle::State_MouseOver);
}
bool showsFocus(const QStyleOption& option) {
  return option.state.testFlag(QStyle::State_HasFocus);
}

/// Turns antialiasing on, and restores the painter's state at the end of the scope.
class AntialiasingScope {
 public:
  explicit AntialiasingScope(QPainter& painter) : painter_(painter) {
    painter_.save();
    painter_.setRenderHint(QPainter::Antialiasing);
  }
  AntialiasingScope(const AntialiasingScope&) = delete;
  AntialiasingScope& operator=(const AntialiasingScope&) = delete;
  ~AntialiasingScope() { painter_.restore(); }

 private:
  QPainter& painter_;
};

QColor fillColor(const SkinColors& colors, const QStyleOption& option, bool on) {
  const QColor fill = on ? colors.accent : colors.controlFill;
  if (isPressed(option)) {
    return mixed(fill, colors.text, 0.14);
  }
  return isHovered(option) ? mixed(fill, colors.text, 0.05) : fill;
}

/// A rounded rectangle; a segment's inner corners are square.
QPainterPath outline(const QRectF& rect, ButtonLook look) {
  QPainterPath path;
  path.setFillRule(Qt::WindingFill);
  path.addRoundedRect(rect, kRadius, kRadius);
  if (look == ButtonLook::FirstSegment) {
    path.addRect(rect.adjusted(kRadius, 0, 0, 0));
  } else if (look == ButtonLook::LastSegment) {
    path.addRect(rect.adjusted(0, 0, -kRadius, 0));
  }
  return path.simplified();
}

void drawTriangle(QPainter& painter, const QRectF& rect, bool down, const QColor& color) {
  painter.translate(rect.center());
  painter.rotate(down ? 90 : 0);
  painter.setPen(Qt::NoPen);
  painter.setBrush(color);
  const QPointF points[] = {{-3, -4}, {4, 0}, {-3, 4}};
  painter.drawPolygon(points, 3);
}

void drawBody(QPainter& painter, const QPainterPath& path, const QColor& fill,
              const QColor& border) {
  painter.setPen(QPen(border, 1));
  painter.setBrush(fill);
  painter.drawPath(path);
}

}  // namespace

ButtonLook buttonLook(const QWidget* widget) {
  const QString look = widget != nullptr ? widget->property("look").toString() : QString();
  if (look == QLatin1String("help")) {
    return ButtonLook::Help;
  }
  if (look == QLatin1String("disclosure")) {
    return ButtonLook::Disclosure;
  }
  if (look == QLatin1String("firstSegment")) {
    return ButtonLook::FirstSegment;
  }
  return look == QLatin1String("lastSegment") ? ButtonLook::LastSegment : ButtonLook::Plain;
}

void drawButton(QPainter& painter, const QStyleOptionButton& option, ButtonLook look) {
  const AntialiasingScope antialiasing(painter);
  const SkinColors colors = skinColors(option.palette, isEnabled(option));
  QRectF rect = QRectF(option.rect).adjusted(0.5, 0.5, -0.5, -0.5);
  const bool on = isOn(option);
  // Where two segments touch, their borders overlap.
  if (look == ButtonLook::FirstSegment) {
    rect.adjust(0, 0, 0.5, 0);
  } else if (look == ButtonLook::LastSegment) {
    rect.adjust(-0.5, 0, 0, 0);
  }

  QPainterPath path = outline(rect, look);
  if (look == ButtonLook::Disclosure) {
    if (isPressed(option) || isHovered(option)) {
      drawBody(painter, path, mixed(colors.window, colors.text, isPressed(option) ? 0.16 : 0.08),
               Qt::transparent);
    }
  } else {
    if (look == ButtonLook::Help) {
      path = QPainterPath();
      path.addEllipse(rect);
    }
    const QColor fill = fillColor(colors, option, on);
    const bool isDefault = option.features.testFlag(QStyleOptionButton::DefaultButton);
    drawBody(painter, path, fill, on ? fill : (isDefault ? colors.accent : colors.controlBorder));
  }
  if (showsFocus(option)) {
    drawFocusRing(painter, option.rect, option.palette);
  }

  if (look == ButtonLook::Disclosure) {
    drawTriangle(painter, QRectF(option.rect), on, colors.secondaryText);
    return;
  }
  QFont font = painter.font();
  font.setBold(on);
  painter.setFont(font);
  painter.setPen(on                         ? colors.accentText
                 : look == ButtonLook::Help ? colors.secondaryText
                                            : colors.controlText);
  painter.drawText(option.rect, Qt::AlignCenter | Qt::TextHideMnemonic, option.text);
}

void drawPopUpButton(QPainter& painter, const QStyleOptionComboBox& option, const QRect& arrow) {
  const AntialiasingScope antialiasing(painter);
  const SkinColors colors = skinColors(option.palette, isEnabled(option));
  const QRectF rect = QRectF(option.rect).adjusted(0.5, 0.5, -0.5, -0.5);
  drawBody(painter, outline(rect, ButtonLook::Plain), fillColor(colors, option, false),
           colors.controlBorder);
  if (showsFocus(option)) {
    drawFocusRing(painter, option.rect, option.palette);
  }
  drawTriangle(painter, QRectF(arrow), true, colors.secondaryText);
}

void drawPopUpText(QPainter& painter, const QStyleOptionComboBox& option, const QRect& rect,
                   const QFont& font) {
  const SkinColors colors = skinColors(option.palette, isEnabled(option));
  painter.save();
  painter.setFont(font);
  painter.setPen(colors.controlText);
  painter.drawText(
      rect, Qt::AlignVCenter | Qt::AlignLeft,
      QFontMetrics(font).elidedText(option.currentText, Qt::ElideMiddle, rect.width()));
  painter.restore();
}

void drawMenuItem(QPainter& painter, const QStyleOptionMenuItem& option, int padding) {
  const QRect inside = option.rect.adjusted(padding, 0, -padding, 0);
  if (option.menuItemType == QStyleOptionMenuItem::Separator) {
    drawHairline(painter, inside, option.palette);
    return;
  }
  const SkinColors colors = skinColors(option.palette, isEnabled(option));
  const bool selected = option.state.testFlag(QStyle::State_Selected);
  painter.save();
  if (selected) {
    painter.fillRect(option.rect, colors.accent);
  }
  painter.setFont(option.font);
  painter.setPen(selected ? colors.accentText : colors.text);
  painter.drawText(inside, Qt::AlignVCenter | Qt::AlignLeft | Qt::TextSingleLine, option.text);
  painter.restore();
}

void drawTab(QPainter& painter, const QStyleOptionTab& option) {
  const AntialiasingScope antialiasing(painter);
  const SkinColors colors = skinColors(option.palette, isEnabled(option));
  const bool selected = option.state.testFlag(QStyle::State_Selected);
  const QRect text = option.rect.adjusted(0, 0, -kTabGap, 0);
  QFont font = painter.font();
  font.setBold(selected);
  painter.setFont(font);
  painter.setPen(selected || isHovered(option) ? colors.text : colors.secondaryText);
  painter.drawText(text, Qt::AlignCenter | Qt::TextHideMnemonic, option.text);
  if (selected) {
    painter.fillRect(QRectF(text.left(), text.bottom() - 1, text.width(), 2), colors.accent);
  }
  if (showsFocus(option)) {
    drawFocusRing(painter, text.adjusted(-1, 4, 1, -4), option.palette);
  }
}

void drawSlider(QPainter& painter, const QStyleOptionSlider& option, const QRect& handle) {
  const AntialiasingScope antialiasing(painter);
  const SkinColors colors = skinColors(option.palette, isEnabled(option));
  const double middle = QRectF(option.rect).center().y();
  const QRectF groove(option.rect.left() + 1, middle - 2, option.rect.width() - 2, 4);
  painter.setPen(Qt::NoPen);
  painter.setBrush(colors.lampDark);
  painter.drawRoundedRect(groove, 2, 2);
  painter.setBrush(colors.accent);
  painter.drawRoundedRect(
      QRectF(groove.topLeft(), QPointF(QRectF(handle).center().x(), groove.bottom())), 2, 2);
  QRectF knob(0, 0, 16, 16);
  knob.moveCenter(QPointF(QRectF(handle).center().x(), middle));
  QPainterPath path;
  path.addEllipse(knob);
  const QColor fill =
      isDark(colors.window) ? mixed(colors.window, colors.text, 0.8) : colors.controlFill;
  drawBody(painter, path, fill, mixed(colors.window, colors.text, 0.4));
  if (showsFocus(option)) {
    drawFocusRing(painter, knob.toRect().adjusted(-1, -1, 1, 1), option.palette);
  }
}

void drawCheckMark(QPainter& painter, const QStyleOption& option) {
  const AntialiasingScope antialiasing(painter);
  const SkinColors colors = skinColors(option.palette, isEnabled(option));
  const bool on = isOn(option);
  QRectF box(0, 0, 15, 15);
  box.moveCenter(QRectF(option.rect).center());
  QPainterPath path;
  path.addRoundedRect(box, 3.5, 3.5);
  const QColor fill = fillColor(colors, option, on);
  drawBody(painter, path, fill, on ? fill : mixed(colors.window, colors.text, 0.45));
  if (on) {
    painter.setBrush(Qt::NoBrush);
    painter.setPen(QPen(colors.accentText, 2, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    const QPointF center = box.center();
    const QPointF points[] = {center + QPointF(-3.5, 0.2), center + QPointF(-1.0, 2.8),
                              center + QPointF(3.6, -2.8)};
    painter.drawPolyline(points, 3);
  }
}

void drawKeyCap(QPainter& painter, const QStyleOption& option) {
  const AntialiasingScope antialiasing(painter);
  const SkinColors colors = skinColors(option.palette, isEnabled(option));
  drawBody(painter, outline(QRectF(option.rect).adjusted(0.5, 0.5, -0.5, -0.5), ButtonLook::Plain),
           colors.controlFill, colors.controlBorder);
}

void drawHairline(QPainter& painter, const QRect& rect, const QPalette& palette) {
  painter.fillRect(QRect(rect.left(), rect.center().y(), rect.width(), 1),
                   skinColors(palette).line);
}

void drawFocusRing(QPainter& painter, const QRect& rect, const QPalette& palette) {
  const AntialiasingScope antialiasing(painter);
  const SkinColors colors = skinColors(palette);
  painter.setBrush(Qt::NoBrush);
  painter.setPen(QPen(readable(colors.accent, colors.window, kShapeContrast), kFocusWidth));
  const double inset = kFocusWidth / 2;
  painter.drawRoundedRect(QRectF(rect).adjusted(inset, inset, -inset, -inset), kRadius, kRadius);
}

}  // namespace ui::qt
