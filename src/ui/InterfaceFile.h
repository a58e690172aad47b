#pragma once

#include <functional>
#include <memory>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

#include "ui/Connections.h"
#include "ui/CustomView.h"
#include "ui/Toolkit.h"

namespace ui {

/// The objects of an interface file other than its controls: the custom view and its controllers,
/// each with the name by which the file refers to it.
class UI_EXPORT InterfaceObjects {
 public:
  struct Named {
    std::string name;
    Connections* connections;
  };

  virtual ~InterfaceObjects();
  virtual CustomView& view() = 0;
  /// Names such as "view" and "auditionController". The connections live as long as this object.
  virtual const std::vector<Named>& objects() = 0;
};

using MakeInterfaceObjects =
    std::function<std::unique_ptr<InterfaceObjects>(NativeView& native, Toolkit& toolkit)>;

/// Why an interface file could not be loaded; the message names the file and the fault.
class UI_EXPORT InterfaceError : public std::runtime_error {
 public:
  explicit InterfaceError(const std::string& message);
  ~InterfaceError() override;
};

class UI_EXPORT InterfaceLoader {
 public:
  virtual ~InterfaceLoader();
  /// Loads the file of that name (without extension), makes the objects, fills every outlet that
  /// they declare, connects the actions and returns the view, which owns the objects and the
  /// controls. Throws `InterfaceError` if the file is missing or broken, names an object, outlet or
  /// action that does not exist, or leaves an outlet empty.
  virtual std::unique_ptr<NativeView> loadNibNamed(std::string_view name,
                                                   const MakeInterfaceObjects& makeObjects) = 0;
};

}  // namespace ui
