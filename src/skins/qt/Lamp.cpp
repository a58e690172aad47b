#include "skins/qt/Lamp.h"

#include <QAccessible>
#include <QAccessibleWidget>
#include <QPainter>

#include "skins/qt/SkinColors.h"

namespace ui::qt {

namespace {

constexpr int kSize = 12;

/// Tells assistive tools that the lamp is an indicator, and whether it is lit.
class AccessibleLamp final : public QAccessibleWidget {
 public:
  explicit AccessibleLamp(Lamp& lamp) : QAccessibleWidget(&lamp, QAccessible::Indicator) {}

  QString text(QAccessible::Text kind) const override {
    return kind == QAccessible::Value ? QString::number(lamp().value())
                                      : QAccessibleWidget::text(kind);
  }
  QAccessible::State state() const override {
    QAccessible::State state = QAccessibleWidget::state();
    state.readOnly = true;
    state.checkable = true;
    state.checked = lamp().isLit();
    return state;
  }

 private:
  const Lamp& lamp() const { return *static_cast<const Lamp*>(widget()); }
};

QAccessibleInterface* makeAccessibleLamp(const QString& /*key*/, QObject* object) {
  auto* lamp = dynamic_cast<Lamp*>(object);
  return lamp != nullptr ? new AccessibleLamp(*lamp) : nullptr;
}

}  // namespace

Lamp::Lamp(QWidget* parent) : QWidget(parent) {
  // Qt installs a factory only once.
  QAccessible::installFactory(makeAccessibleLamp);
}

void Lamp::setValue(int value) {
  if (value_ == value) {
    return;
  }
  value_ = value;
  update();
  QAccessible::State changed;
  changed.checked = true;
  QAccessibleStateChangeEvent event(this, changed);
  QAccessible::updateAccessibility(&event);
}

QSize Lamp::sizeHint() const {
  return {kSize, kSize};
}

void Lamp::paintEvent(QPaintEvent* /*event*/) {
  const SkinColors colors = skinColors(palette(), isEnabled());
  QPainter painter(this);
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setPen(Qt::NoPen);
  QRectF square(0, 0, kSize, kSize);
  square.moveCenter(QRectF(rect()).center());
  if (isLit()) {
    painter.setBrush(colors.lampLit);
    painter.drawRoundedRect(square, 2, 2);
  } else {
    painter.setBrush(colors.lampDark);
    painter.drawEllipse(square.adjusted(1, 1, -1, -1));
  }
}

}  // namespace ui::qt
