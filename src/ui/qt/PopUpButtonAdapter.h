#pragma once

#include <QComboBox>
#include <memory>
#include <vector>

#include "ui/qt/Adapter.h"

namespace ui::qt {

/// A menu that shows its chosen item. When the user picks an item, the item's own action is sent,
/// or the button's if the item has none.
///
/// Closed, it opens on Space and the arrow keys and leaves every other key alone: keys that are
/// bound to something else never pick an item by its first letter. The wheel does nothing.
class PopUpButtonAdapter final : public QObject,
                                 public Adapter<PopUpButton, QComboBox>,
                                 public ActionSource {
 public:
  explicit PopUpButtonAdapter(QComboBox& box);
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

  void setAction(Action action) override;
  void setTag(int index, int tag);

 private:
  class Item;

  void userPicked(int index);

  std::vector<std::unique_ptr<Item>> items_;
  Action action_;
};

}  // namespace ui::qt
