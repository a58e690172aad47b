#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "ui/InterfaceFile.h"

namespace ui {

/// Finds the outlets and actions of an interface file's objects by the names that files use. Every
/// fault throws an `InterfaceError` that says what is wrong, but not where or in which file.
class UI_EXPORT DeclaredConnections {
 public:
  /// `objects` must outlive this object.
  explicit DeclaredConnections(const std::vector<InterfaceObjects::Named>& objects);

  const Connections& of(std::string_view object) const;
  /// Fills the outlet. Throws if it is filled already or takes another kind of control; the message
  /// calls the given one `kind`.
  void fill(std::string_view object, std::string_view outlet, Object& control,
            std::string_view kind) const;
  const Action& action(std::string_view object, std::string_view selector) const;
  /// Throws if any outlet of any object is empty.
  void requireEveryOutlet() const;

 private:
  const std::vector<InterfaceObjects::Named>& objects_;
};

}  // namespace ui
