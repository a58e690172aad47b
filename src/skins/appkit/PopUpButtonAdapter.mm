#include "skins/appkit/PopUpButtonAdapter.h"

#include <algorithm>

#include "skins/appkit/MenuItemAdapter.h"
#include "skins/appkit/Strings.h"

namespace ui::appkit {

PopUpButtonAdapter::PopUpButtonAdapter(NSPopUpButton* button) : Adapter(button) {}

PopUpButtonAdapter::~PopUpButtonAdapter() = default;

int PopUpButtonAdapter::numberOfItems() const {
  return static_cast<int>([control() numberOfItems]);
}

MenuItem* PopUpButtonAdapter::itemAtIndex(int index) {
  if (index < 0 || index >= numberOfItems()) {
    return nullptr;
  }
  return item([control() itemAtIndex:index]);
}

int PopUpButtonAdapter::indexOfItemWithTag(int tag) const {
  return static_cast<int>([control() indexOfItemWithTag:tag]);
}

int PopUpButtonAdapter::indexOfItemWithRepresentedObject(const Dictionary& object) const {
  // The button's own search would not find a NaN.
  for (int index = 0; index < numberOfItems(); ++index) {
    const auto represented = representedDictionary([control() itemAtIndex:index]);
    if (represented && isEqual(*represented, object)) {
      return index;
    }
  }
  return -1;
}

void PopUpButtonAdapter::insertItemWithTitle(const std::string& title, int index) {
  NSMenuItem* item = [[[NSMenuItem alloc] initWithTitle:nsString(title)
                                                 action:nullptr
                                          keyEquivalent:@""] autorelease];
  // Through the menu, because the button would remove an item with the same title.
  [[control() menu] insertItem:item atIndex:std::clamp(index, 0, numberOfItems())];
}

void PopUpButtonAdapter::removeItemAtIndex(int index) {
  if (index >= 0 && index < numberOfItems()) {
    items_.erase([control() itemAtIndex:index]);
    [control() removeItemAtIndex:index];
  }
}

int PopUpButtonAdapter::indexOfSelectedItem() const {
  return static_cast<int>([control() indexOfSelectedItem]);
}

void PopUpButtonAdapter::selectItemAtIndex(int index) {
  [control() selectItemAtIndex:index >= 0 && index < numberOfItems() ? index : -1];
}

std::string PopUpButtonAdapter::titleOfSelectedItem() const {
  return utf8([control() titleOfSelectedItem]);
}

MenuItem* PopUpButtonAdapter::item(NSMenuItem* item) {
  if (item == nil || [control() indexOfItem:item] < 0) {
    return nullptr;
  }
  std::unique_ptr<MenuItemAdapter>& adapter = items_[item];
  if (!adapter) {
    adapter = std::make_unique<MenuItemAdapter>(item);
  }
  return adapter.get();
}

}  // namespace ui::appkit
