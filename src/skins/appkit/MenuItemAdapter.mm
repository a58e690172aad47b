#include "skins/appkit/MenuItemAdapter.h"

#include "skins/appkit/Strings.h"

namespace ui::appkit {

std::optional<Dictionary> representedDictionary(NSMenuItem* item) {
  NSDictionary* object = [item representedObject];
  if (![object isKindOfClass:[NSDictionary class]]) {
    return std::nullopt;
  }
  Dictionary dictionary;
  NSEnumerator* keys = [object keyEnumerator];
  while (NSString* key = [keys nextObject]) {
    dictionary[utf8(key)] = [[object objectForKey:key] floatValue];
  }
  return dictionary;
}

MenuItemAdapter::MenuItemAdapter(NSMenuItem* item) : item_(item) {}

MenuItemAdapter::~MenuItemAdapter() {
  if (target_ && [item_ target] == target_->get()) {
    [item_ setTarget:nil];
    [item_ setAction:nullptr];
  }
}

std::string MenuItemAdapter::title() const {
  return utf8([item_ title]);
}

int MenuItemAdapter::tag() const {
  return static_cast<int>([item_ tag]);
}

const Dictionary* MenuItemAdapter::representedObject() const {
  object_ = representedDictionary(item_);
  return object_ ? &*object_ : nullptr;
}

void MenuItemAdapter::setRepresentedObject(const Dictionary& object) {
  NSMutableDictionary* numbers = [NSMutableDictionary dictionary];
  for (const auto& [key, value] : object) {
    [numbers setObject:[NSNumber numberWithFloat:value] forKey:nsString(key)];
  }
  [item_ setRepresentedObject:numbers];
}

void MenuItemAdapter::setAction(Action action) {
  target_ = std::make_unique<OwnedTarget>([=, this](id) {
    if (action) {
      action(this);
    }
  });
  [item_ setTarget:target_->get()];
  [item_ setAction:@selector(perform:)];
}

}  // namespace ui::appkit
