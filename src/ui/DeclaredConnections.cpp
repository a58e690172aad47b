#include "ui/DeclaredConnections.h"

#include <algorithm>
#include <type_traits>
#include <variant>

namespace ui {

namespace {

std::string quoted(std::string_view object, std::string_view member) {
  return "\"" + std::string(object) + "." + std::string(member) + "\"";
}

}  // namespace

DeclaredConnections::DeclaredConnections(const std::vector<InterfaceObjects::Named>& objects)
    : objects_(objects) {}

const Connections& DeclaredConnections::of(std::string_view object) const {
  const auto found = std::find_if(objects_.begin(), objects_.end(),
                                  [&](const auto& named) { return named.name == object; });
  if (found == objects_.end()) {
    throw InterfaceError("no object is named \"" + std::string(object) + "\"");
  }
  return *found->connections;
}

void DeclaredConnections::fill(std::string_view object, std::string_view outlet, Object& control,
                               std::string_view kind) const {
  const auto& outlets = of(object).outlets();
  const auto found = std::find_if(outlets.begin(), outlets.end(),
                                  [&](const auto& declared) { return declared.name == outlet; });
  if (found == outlets.end()) {
    throw InterfaceError("no outlet is named " + quoted(object, outlet));
  }
  std::visit(
      [&](auto** place) {
        using Control = std::remove_pointer_t<std::remove_reference_t<decltype(*place)>>;
        if (*place != nullptr) {
          throw InterfaceError("outlet " + quoted(object, outlet) + " is filled already");
        }
        *place = dynamic_cast<Control*>(&control);
        if (*place == nullptr) {
          throw InterfaceError("a " + std::string(kind) + " cannot fill outlet " +
                               quoted(object, outlet));
        }
      },
      found->slot);
}

const Action& DeclaredConnections::action(std::string_view object,
                                          std::string_view selector) const {
  const auto& actions = of(object).actions();
  const auto found = std::find_if(actions.begin(), actions.end(), [&](const auto& declared) {
    return declared.selector == selector;
  });
  if (found == actions.end()) {
    throw InterfaceError("no action is named " + quoted(object, selector));
  }
  return found->action;
}

void DeclaredConnections::requireEveryOutlet() const {
  for (const auto& object : objects_) {
    for (const auto& outlet : object.connections->outlets()) {
      if (std::visit([](auto** place) { return *place == nullptr; }, outlet.slot)) {
        throw InterfaceError("no widget fills outlet " + quoted(object.name, outlet.name));
      }
    }
  }
}

}  // namespace ui
