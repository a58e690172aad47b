#pragma once

#include <map>
#include <memory>

#include "skins/appkit/Adapter.h"
#include "ui/PopUpButton.h"

namespace ui::appkit {

class MenuItemAdapter;

/// A menu that shows its chosen item. An item with an action of its own sends that, any other the
/// button's.
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

  /// Null for an item of another menu.
  MenuItem* item(NSMenuItem* item);

 private:
  std::map<NSMenuItem*, std::unique_ptr<MenuItemAdapter>> items_;
};

}  // namespace ui::appkit
