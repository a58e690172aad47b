#include "ui/qt/Wiring.h"

#include <QComboBox>
#include <QVariant>
#include <algorithm>
#include <string>
#include <type_traits>
#include <variant>

#include "ui/Toolkit.h"
#include "ui/qt/Adapters.h"
#include "ui/qt/PopUpButtonAdapter.h"
#include "ui/qt/QtView.h"

namespace ui::qt {

namespace {

/// "auditionController.monitorChanged:" taken apart at its dot.
struct FullName {
  std::string object;
  std::string member;
};

[[noreturn]] void fail(const QWidget& widget, const std::string& fault) {
  throw InterfaceError("widget \"" + widget.objectName().toStdString() + "\": " + fault);
}

class Wiring {
 public:
  Wiring(QtView& view, InterfaceObjects& objects, Toolkit& toolkit)
      : view_(view), objects_(objects.objects()), toolkit_(toolkit) {}

  void wire() {
    wire(view_);
    for (QWidget* widget : view_.findChildren<QWidget*>()) {
      wire(*widget);
    }
    requireEveryOutlet();
  }

 private:
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
      fill(outletNamed(outlet.toStdString(), widget), outlet.toStdString(), *control, widget);
    }
    if (!action.isEmpty()) {
      connectAction(action.toStdString(), *control, widget);
    }
    connectItems(itemActions, *control, widget);
    view_.addControl(std::move(control));
  }

  void connectAction(const std::string& name, Object& control, const QWidget& widget) const {
    auto* source = dynamic_cast<ActionSource*>(&control);
    if (source == nullptr) {
      fail(widget, std::string("a ") + widget.metaObject()->className() + " sends no action");
    }
    source->setAction(actionNamed(name, widget));
  }

  void connectItems(const QStringList& names, Object& control, const QWidget& widget) const {
    auto* popUp = dynamic_cast<PopUpButton*>(&control);
    if (!names.isEmpty() && (popUp == nullptr || names.size() > popUp->numberOfItems())) {
      fail(widget, "it has fewer menu items than actions for them");
    }
    for (int index = 0; index < names.size(); ++index) {
      if (!names[index].isEmpty()) {
        popUp->itemAtIndex(index)->setAction(actionNamed(names[index].toStdString(), widget));
      }
    }
  }

  static void fill(const Connections::Slot& slot, const std::string& name, Object& control,
                   const QWidget& widget) {
    std::visit(
        [&](auto** place) {
          using Control = std::remove_pointer_t<std::remove_reference_t<decltype(*place)>>;
          if (*place != nullptr) {
            fail(widget, "outlet \"" + name + "\" is filled already");
          }
          *place = dynamic_cast<Control*>(&control);
          if (*place == nullptr) {
            fail(widget, std::string("a ") + widget.metaObject()->className() +
                             " cannot fill outlet \"" + name + "\"");
          }
        },
        slot);
  }

  const Connections::Slot& outletNamed(const std::string& fullName, const QWidget& widget) const {
    const FullName name = apart(fullName, widget);
    const auto& outlets = connectionsOf(name.object, widget).outlets();
    const auto found = std::find_if(outlets.begin(), outlets.end(),
                                    [&](const auto& outlet) { return outlet.name == name.member; });
    if (found == outlets.end()) {
      fail(widget, "no outlet is named \"" + fullName + "\"");
    }
    return found->slot;
  }

  Action actionNamed(const std::string& fullName, const QWidget& widget) const {
    const FullName name = apart(fullName, widget);
    const auto& actions = connectionsOf(name.object, widget).actions();
    const auto found = std::find_if(actions.begin(), actions.end(), [&](const auto& action) {
      return action.selector == name.member;
    });
    if (found == actions.end()) {
      fail(widget, "no action is named \"" + fullName + "\"");
    }
    return found->action;
  }

  const Connections& connectionsOf(const std::string& object, const QWidget& widget) const {
    const auto found = std::find_if(objects_.begin(), objects_.end(),
                                    [&](const auto& named) { return named.name == object; });
    if (found == objects_.end()) {
      fail(widget, "no object is named \"" + object + "\"");
    }
    return *found->connections;
  }

  static FullName apart(const std::string& fullName, const QWidget& widget) {
    const std::size_t dot = fullName.find('.');
    if (dot == std::string::npos) {
      fail(widget, "\"" + fullName + "\" names no object");
    }
    return {fullName.substr(0, dot), fullName.substr(dot + 1)};
  }

  void requireEveryOutlet() const {
    for (const auto& object : objects_) {
      for (const auto& outlet : object.connections->outlets()) {
        if (std::visit([](auto** place) { return *place == nullptr; }, outlet.slot)) {
          throw InterfaceError("no widget fills outlet \"" + object.name + "." + outlet.name +
                               "\"");
        }
      }
    }
  }

  QtView& view_;
  const std::vector<InterfaceObjects::Named>& objects_;
  Toolkit& toolkit_;
};

}  // namespace

void wire(QtView& view, InterfaceObjects& objects, Toolkit& toolkit) {
  Wiring(view, objects, toolkit).wire();
}

}  // namespace ui::qt
