#pragma once

#include <functional>
#include <map>
#include <string>

#include "ui/Controls.h"

namespace ui {

/// What a menu item stands for: named numbers, compared by value. A NaN equals a NaN, so that
/// an object always equals itself.
using Dictionary = std::map<std::string, float>;
UI_EXPORT bool isEqual(const Dictionary& left, const Dictionary& right);

using Action = std::function<void(Object* sender)>;

/// One item of a pop-up button's menu. Owned by the button; valid until it is removed.
class UI_EXPORT MenuItem : public Object {
 public:
  ~MenuItem() override;
  virtual std::string title() const = 0;
  virtual int tag() const = 0;
  /// Null while none is set.
  virtual const Dictionary* representedObject() const = 0;
  virtual void setRepresentedObject(const Dictionary& object) = 0;
  /// Called with the item as sender when the user picks the item.
  virtual void setAction(Action action) = 0;
};

/// Indices count from 0 and include separators; -1 means no item.
class UI_EXPORT PopUpButton : public View {
 public:
  ~PopUpButton() override;
  virtual int numberOfItems() const = 0;
  /// Null out of range.
  virtual MenuItem* itemAtIndex(int index) = 0;
  virtual int indexOfItemWithTag(int tag) const = 0;
  virtual int indexOfItemWithRepresentedObject(const Dictionary& object) const = 0;
  /// Titles need not be unique.
  virtual void insertItemWithTitle(const std::string& title, int index) = 0;
  virtual void removeItemAtIndex(int index) = 0;
  virtual int indexOfSelectedItem() const = 0;
  /// An index out of range selects nothing.
  virtual void selectItemAtIndex(int index) = 0;
  virtual std::string titleOfSelectedItem() const = 0;
};

}  // namespace ui
