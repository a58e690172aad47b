#pragma once

#include <map>
#include <memory>

#include "skins/appkit/Adapter.h"
#include "ui/PopUpButton.h"

namespace ui::appkit {

class MenuItemAdapter;

/// A menu button that shows the selected item. When the user picks an item, its own action is sent
/// or, if it has none, the button's.
class PopUpButtonAdapter final : public Adapter<PopUpButton, NSPopUpButton> {
 public:
  explicit PopUpButtonAdapter(NSPopUpButton* button);
  ~PopUpButtonAdapter() override;

  int numberOfItems() const override;
  MenuItem* itemAtIndex(int index) override;
  int indexOfItemWithTag(int tag) const override;
  int indexOfItemWithRepresentedObject(const Dictionary& object) const override;
  void insertItemWithTitle(const std::string& title, int index) override;
  void removeItemAtIndex(int index) override;
  int indexOfSelectedItem() const override;
  void selectItemAtIndex(int index) override;
  std::string titleOfSelectedItem() const override;

  /// The control for an item of this menu; null for any other.
  MenuItem* item(NSMenuItem* item);

 private:
  std::map<NSMenuItem*, std::unique_ptr<MenuItemAdapter>> items_;
};

}  // namespace ui::appkit
