#include "skins/qt/ButtonAdapter.h"

#include <QVariant>
#include <utility>

namespace ui::qt {

ButtonAdapter::ButtonAdapter(QAbstractButton& button) : Adapter(button) {
  QObject::connect(&button, &QAbstractButton::clicked, receiver(), [this] { send(action_, this); });
}

int ButtonAdapter::state() const {
  return widget().isChecked() ? 1 : 0;
}

void ButtonAdapter::setState(int state) {
  widget().setChecked(state != 0);
}

void ButtonAdapter::performClick() {
  widget().click();
}

int ButtonAdapter::tag() const {
  return widget().property("tag").toInt();
}

void ButtonAdapter::setAction(Action action) {
  action_ = std::move(action);
}

}  // namespace ui::qt
