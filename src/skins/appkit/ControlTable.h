#pragma once

#import <AppKit/AppKit.h>

#include <map>
#include <memory>

#include "ui/Object.h"

namespace ui {
class Localization;
}

namespace ui::appkit {

/// The core's controls for an interface file's objects, each made when it is first asked for.
class ControlTable {
 public:
  explicit ControlTable(const Localization& localization);
  ControlTable(const ControlTable&) = delete;
  ControlTable& operator=(const ControlTable&) = delete;
  ~ControlTable();

  /// The control for a view, window or menu item, chosen by its class; a plain view if no other
  /// fits. A menu item is found only after its pop-up button has been asked for. Null for anything
  /// else. The object must outlive this table.
  Object* control(id object);

 private:
  std::unique_ptr<Object> makeControl(id object) const;
  Object* menuItem(NSMenuItem* item);

  const Localization& localization_;
  std::map<id, std::unique_ptr<Object>> controls_;
};

}  // namespace ui::appkit
