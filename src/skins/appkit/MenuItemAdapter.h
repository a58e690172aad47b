#pragma once

#import <AppKit/AppKit.h>

#include <memory>
#include <optional>

#include "skins/appkit/ActionTarget.h"
#include "ui/PopUpButton.h"

namespace ui::appkit {

/// The item's represented object, a dictionary of numbers; nothing if it is anything else.
std::optional<Dictionary> representedDictionary(NSMenuItem* item);

class MenuItemAdapter final : public MenuItem {
 public:
  explicit MenuItemAdapter(NSMenuItem* item);
  /// Removes an action set here from the item.
  ~MenuItemAdapter() override;

  std::string title() const override;
  int tag() const override;
  const Dictionary* representedObject() const override;
  void setRepresentedObject(const Dictionary& object) override;
  void setAction(Action action) override;

 private:
  NSMenuItem* item_;
  mutable std::optional<Dictionary> object_;
  std::unique_ptr<OwnedTarget> target_;
};

}  // namespace ui::appkit
