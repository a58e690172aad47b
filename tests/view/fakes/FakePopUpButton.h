#pragma once

#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "view/fakes/FakeControls.h"

namespace fakes {

class FakeMenuItem final : public ui::MenuItem {
 public:
  FakeMenuItem(CallLog& log, std::string menu, std::string title, int tag = 0);

  bool isSeparator() const { return title_.empty(); }
  /// Sends the item's own action; false if it has none.
  bool sendOwnAction();

  std::string title() const override { return title_; }
  int tag() const override { return tag_; }
  const ui::Dictionary* representedObject() const override { return object_ ? &*object_ : nullptr; }
  void setRepresentedObject(const ui::Dictionary& object) override;
  void setAction(ui::Action action) override;

 private:
  CallLog& log_;
  std::string menu_;
  std::string title_;
  int tag_;
  std::optional<ui::Dictionary> object_;
  ui::Action action_;
};

/// The selection stays with its item while others come and go.
class FakePopUpButton final : public FakeControl<ui::PopUpButton> {
 public:
  using FakeControl::FakeControl;

  /// As the interface file leaves it; not recorded. An empty title is a separator. The first item
  /// becomes the selected one.
  FakeMenuItem& addItem(const std::string& title, int tag = 0);
  /// Selects the item, then sends its action or, if it has none, the pop-up's own.
  void userPicks(int index);
  std::vector<std::string> titles() const;

  int numberOfItems() const override { return static_cast<int>(items_.size()); }
  ui::MenuItem* itemAtIndex(int index) override;
  int indexOfItemWithTag(int tag) const override;
  int indexOfItemWithRepresentedObject(const ui::Dictionary& object) const override;
  void insertItemWithTitle(const std::string& title, int index) override;
  void removeItemAtIndex(int index) override;
  int indexOfSelectedItem() const override;
  void selectItemAtIndex(int index) override;
  std::string titleOfSelectedItem() const override;

 private:
  bool holds(int index) const { return index >= 0 && index < numberOfItems(); }
  int indexOf(const FakeMenuItem* item) const;

  std::vector<std::unique_ptr<FakeMenuItem>> items_;
  const FakeMenuItem* selected_ = nullptr;
};

}  // namespace fakes
