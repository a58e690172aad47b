#include "skins/qt/AccessibleButton.h"

#include <QAccessible>
#include <QAccessibleWidget>

#include "skins/qt/CheckBox.h"
#include "skins/qt/PushButton.h"
#include "skins/qt/SkinPainter.h"

namespace ui::qt {

namespace {

class AccessibleButton final : public QAccessibleWidget {
 public:
  explicit AccessibleButton(QAbstractButton& button)
      : QAccessibleWidget(&button), button_(button) {}

  // Not fixed in the constructor: this may be made before the button has its properties.
  QAccessible::Role role() const override {
    const ButtonLook look = buttonLook(&button_);
    if (look == ButtonLook::FirstSegment || look == ButtonLook::LastSegment) {
      return QAccessible::RadioButton;
    }
    return button_.isCheckable() ? QAccessible::CheckBox : QAccessible::Button;
  }

  QString text(QAccessible::Text kind) const override {
    const bool isNamed = !button_.accessibleName().isEmpty();
    return kind == QAccessible::Name && !isNamed ? button_.text() : QAccessibleWidget::text(kind);
  }

  QAccessible::State state() const override {
    QAccessible::State state = QAccessibleWidget::state();
    state.checkable = button_.isCheckable();
    state.checked = button_.isChecked();
    state.pressed = button_.isDown();
    const auto* push = qobject_cast<const QPushButton*>(&button_);
    state.defaultButton = push != nullptr && push->isDefault();
    return state;
  }

  QStringList actionNames() const override {
    QStringList names = QAccessibleWidget::actionNames();
    if (button_.isEnabled()) {
      names.prepend(button_.isCheckable() ? toggleAction() : pressAction());
    }
    return names;
  }

  void doAction(const QString& action) override {
    if (action != pressAction() && action != toggleAction()) {
      QAccessibleWidget::doAction(action);
      return;
    }
    // Queued, because the click may take a while and the tool waits for this call to return.
    QMetaObject::invokeMethod(&button_, &QAbstractButton::click, Qt::QueuedConnection);
  }

 private:
  QAbstractButton& button_;
};

QAccessibleInterface* makeAccessibleButton(const QString& /*key*/, QObject* object) {
  const bool isOfView =
      dynamic_cast<PushButton*>(object) != nullptr || dynamic_cast<CheckBox*>(object) != nullptr;
  return isOfView ? new AccessibleButton(*static_cast<QAbstractButton*>(object)) : nullptr;
}

}  // namespace

void installAccessibleButtons() {
  // Qt installs a factory only once.
  QAccessible::installFactory(makeAccessibleButton);
}

}  // namespace ui::qt
