#include "skins/qt/PopUpButtonAdapter.h"

#include <algorithm>
#include <optional>
#include <utility>

namespace ui::qt {

/// An item finds its title through the button, because its index may change.
class PopUpButtonAdapter::Item final : public MenuItem {
 public:
  explicit Item(const PopUpButtonAdapter& button) : button_(button) {}

  std::string title() const override {
    const auto place =
        std::find_if(button_.items_.begin(), button_.items_.end(),
                     [this](const std::unique_ptr<Item>& item) { return item.get() == this; });
    return button_.widget()
        .itemText(static_cast<int>(place - button_.items_.begin()))
        .toStdString();
  }
  int tag() const override { return tag_; }
  const Dictionary* representedObject() const override { return object_ ? &*object_ : nullptr; }
  void setRepresentedObject(const Dictionary& object) override { object_ = object; }
  void setAction(Action action) override { action_ = std::move(action); }

  void setTag(int tag) { tag_ = tag; }
  const Action& action() const { return action_; }

 private:
  const PopUpButtonAdapter& button_;
  int tag_ = 0;
  std::optional<Dictionary> object_;
  Action action_;
};

PopUpButtonAdapter::PopUpButtonAdapter(QComboBox& box) : Adapter(box) {
  for (int index = 0; index < box.count(); ++index) {
    items_.push_back(std::make_unique<Item>(*this));
  }
  QObject::connect(&box, &QComboBox::activated, receiver(),
                   [this](int index) { sendActionOfItem(index); });
}

PopUpButtonAdapter::~PopUpButtonAdapter() = default;

int PopUpButtonAdapter::numberOfItems() const {
  return static_cast<int>(items_.size());
}

MenuItem* PopUpButtonAdapter::itemAtIndex(int index) {
  return index >= 0 && index < numberOfItems() ? items_[static_cast<std::size_t>(index)].get()
                                               : nullptr;
}

int PopUpButtonAdapter::indexOfItemWithTag(int tag) const {
  const auto found = std::find_if(items_.begin(), items_.end(),
                                  [tag](const auto& item) { return item->tag() == tag; });
  return found != items_.end() ? static_cast<int>(found - items_.begin()) : -1;
}

int PopUpButtonAdapter::indexOfItemWithRepresentedObject(const Dictionary& object) const {
  const auto found = std::find_if(items_.begin(), items_.end(), [&object](const auto& item) {
    return item->representedObject() != nullptr && isEqual(*item->representedObject(), object);
  });
  return found != items_.end() ? static_cast<int>(found - items_.begin()) : -1;
}

void PopUpButtonAdapter::insertItemWithTitle(const std::string& title, int index) {
  const int place = std::clamp(index, 0, numberOfItems());
  widget().insertItem(place, QString::fromStdString(title));
  items_.insert(items_.begin() + place, std::make_unique<Item>(*this));
}

void PopUpButtonAdapter::removeItemAtIndex(int index) {
  if (index >= 0 && index < numberOfItems()) {
    widget().removeItem(index);
    items_.erase(items_.begin() + index);
  }
}

int PopUpButtonAdapter::indexOfSelectedItem() const {
  return widget().currentIndex();
}

void PopUpButtonAdapter::selectItemAtIndex(int index) {
  widget().setCurrentIndex(index >= 0 && index < numberOfItems() ? index : -1);
}

std::string PopUpButtonAdapter::titleOfSelectedItem() const {
  return widget().currentText().toStdString();
}

void PopUpButtonAdapter::setAction(Action action) {
  action_ = std::move(action);
}

void PopUpButtonAdapter::setTag(int index, int tag) {
  items_.at(static_cast<std::size_t>(index))->setTag(tag);
}

void PopUpButtonAdapter::sendActionOfItem(int index) {
  if (index < 0 || index >= numberOfItems()) {
    return;
  }
  Item& item = *items_[static_cast<std::size_t>(index)];
  if (item.action()) {
    send(item.action(), &item);
  } else {
    send(action_, this);
  }
}

}  // namespace ui::qt
