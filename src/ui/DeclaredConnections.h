#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "ui/InterfaceFile.h"

namespace ui {

/// The outlets and actions of an interface file's objects, found by the names that files use. Every
/// fault is an `InterfaceError` that says what is wrong, but neither where nor in which file.
class UI_EXPORT DeclaredConnections {
 public:
  /// The objects have to outlive this.
  explicit DeclaredConnections(const std::vector<InterfaceObjects::Named>& objects);

  const Connections& of(std::string_view object) const;
  /// Fills the outlet. A fault if it is filled already or takes another kind of control; `kind` is
  /// what the message calls this one.
  void fill(std::string_view object, std::string_view outlet, Object& control,
            std::string_view kind) const;
  const Action& action(std::string_view object, std::string_view selector) const;
  /// A fault if an outlet of any object is empty.
  void requireEveryOutlet() const;

 private:
  const std::vector<InterfaceObjects::Named>& objects_;
};

}  // namespace ui
