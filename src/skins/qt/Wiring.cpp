#include "skins/qt/Wiring.h"

#include <QComboBox>
#include <QVariant>
#include <string>

#include "skins/qt/AdapterFactory.h"
#include "skins/qt/PopUpButtonAdapter.h"
#include "skins/qt/QtView.h"
#include "ui/DeclaredConnections.h"
#include "ui/Toolkit.h"

namespace ui::qt {

namespace {

/// The two parts of a name such as "auditionController.monitorChanged:".
struct FullName {
  std::string object;
  std::string member;
};

class Wiring {
 public:
  Wiring(QtView& view, InterfaceObjects& objects, Toolkit& toolkit)
      : view_(view), declared_(objects.objects()), toolkit_(toolkit) {}

  void wire() {
    wireNamed(view_);
    for (QWidget* widget : view_.findChildren<QWidget*>()) {
      wireNamed(*widget);
    }
    declared_.requireEveryOutlet();
  }

 private:
  /// Adds the widget's name to the message of any fault.
  void wireNamed(QWidget& widget) {
    try {
      wire(widget);
    } catch (const InterfaceError& fault) {
      throw InterfaceError("widget \"" + widget.objectName().toStdString() + "\": " + fault.what());
    }
  }

  void wire(QWidget& widget) {
    const QStringList outlets =
        widget.property("outlets").toString().split(QLatin1Char(' '), Qt::SkipEmptyParts);
    const QString action = widget.property("action").toString();
    const QStringList itemActions = widget.property("itemActions").toStringList();
    if (outlets.isEmpty() && action.isEmpty() && itemActions.isEmpty()) {
      return;
    }
    std::unique_ptr<Object> control = makeAdapter(widget, toolkit_.bundle, toolkit_.localization);
    for (const QString& outlet : outlets) {
      const FullName name = splitName(outlet);
      declared_.fill(name.object, name.member, *control, widget.metaObject()->className());
    }
    if (!action.isEmpty()) {
      connectAction(action, *control, widget);
    }
    connectItems(itemActions, *control);
    view_.addControl(std::move(control));
  }

  void connectAction(const QString& name, Object& control, const QWidget& widget) const {
    auto* source = dynamic_cast<ActionSource*>(&control);
    if (source == nullptr) {
      throw InterfaceError(std::string("a ") + widget.metaObject()->className() +
                           " sends no action");
    }
    source->setAction(actionNamed(name));
  }

  void connectItems(const QStringList& names, Object& control) const {
    auto* popUp = dynamic_cast<PopUpButton*>(&control);
    if (!names.isEmpty() && (popUp == nullptr || names.size() > popUp->numberOfItems())) {
      throw InterfaceError("it has fewer menu items than item actions");
    }
    for (int index = 0; index < names.size(); ++index) {
      if (!names[index].isEmpty()) {
        popUp->itemAtIndex(index)->setAction(actionNamed(names[index]));
      }
    }
  }

  Action actionNamed(const QString& fullName) const {
    const FullName name = splitName(fullName);
    return declared_.action(name.object, name.member);
  }

  static FullName splitName(const QString& name) {
    const std::string fullName = name.toStdString();
    const std::size_t dot = fullName.find('.');
    if (dot == std::string::npos) {
      throw InterfaceError("\"" + fullName + "\" names no object");
    }
    return {fullName.substr(0, dot), fullName.substr(dot + 1)};
  }

  QtView& view_;
  DeclaredConnections declared_;
  Toolkit& toolkit_;
};

}  // namespace

void wire(QtView& view, InterfaceObjects& objects, Toolkit& toolkit) {
  Wiring(view, objects, toolkit).wire();
}

}  // namespace ui::qt
