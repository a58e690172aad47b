#include "skins/appkit/ControlTable.h"

#include "skins/appkit/ButtonAdapter.h"
#include "skins/appkit/LampAdapter.h"
#include "skins/appkit/PopUpButtonAdapter.h"
#include "skins/appkit/SegmentedControlAdapter.h"
#include "skins/appkit/SheetAdapter.h"
#include "skins/appkit/SliderAdapter.h"
#include "skins/appkit/TabViewAdapter.h"
#include "skins/appkit/TextFieldAdapter.h"

namespace ui::appkit {

namespace {

using PlainView = Adapter<View, NSView>;

}  // namespace

ControlTable::ControlTable(const Localization& localization) : localization_(localization) {}

ControlTable::~ControlTable() = default;

Object* ControlTable::control(id object) {
  const auto known = controls_.find(object);
  if (known != controls_.end()) {
    return known->second.get();
  }
  if ([object isKindOfClass:[NSMenuItem class]]) {
    return menuItem(object);
  }
  std::unique_ptr<Object> control = makeControl(object);
  return control ? controls_.emplace(object, std::move(control)).first->second.get() : nullptr;
}

std::unique_ptr<Object> ControlTable::makeControl(id object) const {
  // First, because a pop-up button is also a button.
  if ([object isKindOfClass:[NSPopUpButton class]]) {
    return std::make_unique<PopUpButtonAdapter>(object);
  }
  if ([object isKindOfClass:[NSButton class]]) {
    return std::make_unique<ButtonAdapter>(object);
  }
  if ([object isKindOfClass:[NSTextField class]]) {
    return std::make_unique<TextFieldAdapter>(object, localization_);
  }
  if ([object isKindOfClass:[NSLevelIndicator class]]) {
    return std::make_unique<LampAdapter>(object);
  }
  if ([object isKindOfClass:[NSSegmentedControl class]]) {
    return std::make_unique<SegmentedControlAdapter>(object);
  }
  if ([object isKindOfClass:[NSSlider class]]) {
    return std::make_unique<SliderAdapter>(object);
  }
  if ([object isKindOfClass:[NSTabView class]]) {
    return std::make_unique<TabViewAdapter>(object);
  }
  if ([object isKindOfClass:[NSWindow class]]) {
    return std::make_unique<SheetAdapter>(object);
  }
  if ([object isKindOfClass:[NSView class]]) {
    return std::make_unique<PlainView>(object);
  }
  return nullptr;
}

Object* ControlTable::menuItem(NSMenuItem* item) {
  for (const auto& [object, control] : controls_) {
    if (auto* popUp = dynamic_cast<PopUpButtonAdapter*>(control.get())) {
      if (MenuItem* found = popUp->item(item)) {
        return found;
      }
    }
  }
  return nullptr;
}

}  // namespace ui::appkit
