#pragma once

#import <AppKit/AppKit.h>

#include <map>
#include <memory>

#include "ui/Object.h"

namespace ui {
class Localization;
}

namespace ui::appkit {

/// The core's controls over the objects of an interface file, made as they are asked for.
class ControlTable {
 public:
  explicit ControlTable(const Localization& localization);
  ControlTable(const ControlTable&) = delete;
  ControlTable& operator=(const ControlTable&) = delete;
  ~ControlTable();

  /// The control over a view, window or menu item, by its class; null for anything else. Every view
  /// is a view at least. The object has to live as long as this table.
  Object* control(id object);

 private:
  std::unique_ptr<Object> made(id object) const;
  Object* menuItem(NSMenuItem* item);

  const Localization& localization_;
  std::map<id, std::unique_ptr<Object>> controls_;
};

}  // namespace ui::appkit
