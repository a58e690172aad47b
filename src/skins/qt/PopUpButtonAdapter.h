#pragma once

#include <QComboBox>
#include <memory>
#include <vector>

#include "skins/qt/Adapter.h"

namespace ui::qt {

/// A menu button that shows the selected item. When the user picks an item, its own action is sent
/// or, if it has none, the button's.
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

  void sendActionOfItem(int index);

  std::vector<std::unique_ptr<Item>> items_;
  Action action_;
};

}  // namespace ui::qt
