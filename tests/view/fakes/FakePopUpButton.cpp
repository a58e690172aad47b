#include "view/fakes/FakePopUpButton.h"

#include <algorithm>
#include <iterator>
#include <stdexcept>
#include <utility>

namespace fakes {

FakeMenuItem::FakeMenuItem(CallLog& log, std::string menu, std::string title, int tag)
    : log_(log), menu_(std::move(menu)), title_(std::move(title)), tag_(tag) {}

bool FakeMenuItem::sendOwnAction() {
  const ui::Action action = action_;
  if (!action) {
    return false;
  }
  action(this);
  return true;
}

void FakeMenuItem::setRepresentedObject(const ui::Dictionary& object) {
  std::string entries;
  for (const auto& [key, value] : object) {
    std::ostringstream entry;
    entry << " " << key << "=" << value;
    entries += entry.str();
  }
  log_.add(menu_, "[", title_, "].setRepresentedObject", entries);
  object_ = object;
}

void FakeMenuItem::setAction(ui::Action action) {
  action_ = std::move(action);
}

FakeMenuItem& FakePopUpButton::addItem(const std::string& title, int tag) {
  items_.push_back(std::make_unique<FakeMenuItem>(callLog(), name(), title, tag));
  if (selected_ == nullptr) {
    selected_ = items_.front().get();
  }
  return *items_.back();
}

void FakePopUpButton::userPicks(int index) {
  if (!isEnabled()) {
    return;
  }
  if (!holds(index) || items_[static_cast<std::size_t>(index)]->isSeparator()) {
    throw std::out_of_range(name() + " has no item to pick at " + std::to_string(index));
  }
  FakeMenuItem& item = *items_[static_cast<std::size_t>(index)];
  selected_ = &item;
  if (!item.sendOwnAction()) {
    sendAction(this);
  }
}

std::vector<std::string> FakePopUpButton::titles() const {
  std::vector<std::string> titles;
  for (const auto& item : items_) {
    titles.push_back(item->title());
  }
  return titles;
}

ui::MenuItem* FakePopUpButton::itemAtIndex(int index) {
  return holds(index) ? items_[static_cast<std::size_t>(index)].get() : nullptr;
}

int FakePopUpButton::indexOfItemWithTag(int tag) const {
  const auto found = std::find_if(items_.begin(), items_.end(),
                                  [&](const auto& item) { return item->tag() == tag; });
  return found == items_.end() ? -1 : static_cast<int>(std::distance(items_.begin(), found));
}

int FakePopUpButton::indexOfItemWithRepresentedObject(const ui::Dictionary& object) const {
  const auto found = std::find_if(items_.begin(), items_.end(), [&](const auto& item) {
    return item->representedObject() != nullptr && ui::isEqual(*item->representedObject(), object);
  });
  return found == items_.end() ? -1 : static_cast<int>(std::distance(items_.begin(), found));
}

void FakePopUpButton::insertItemWithTitle(const std::string& title, int index) {
  record("insertItemWithTitle ", title, " at ", index);
  if (index < 0 || index > numberOfItems()) {
    throw std::out_of_range(name() + " cannot insert at " + std::to_string(index));
  }
  items_.insert(items_.begin() + index, std::make_unique<FakeMenuItem>(callLog(), name(), title));
}

void FakePopUpButton::removeItemAtIndex(int index) {
  record("removeItemAtIndex ", index);
  if (!holds(index)) {
    throw std::out_of_range(name() + " has no item to remove at " + std::to_string(index));
  }
  if (selected_ == items_[static_cast<std::size_t>(index)].get()) {
    selected_ = nullptr;
  }
  items_.erase(items_.begin() + index);
}

int FakePopUpButton::indexOf(const FakeMenuItem* item) const {
  const auto found = std::find_if(items_.begin(), items_.end(),
                                  [&](const auto& each) { return each.get() == item; });
  return found == items_.end() ? -1 : static_cast<int>(std::distance(items_.begin(), found));
}

int FakePopUpButton::indexOfSelectedItem() const {
  return selected_ == nullptr ? -1 : indexOf(selected_);
}

void FakePopUpButton::selectItemAtIndex(int index) {
  record("selectItemAtIndex ", index);
  selected_ = holds(index) ? items_[static_cast<std::size_t>(index)].get() : nullptr;
}

std::string FakePopUpButton::titleOfSelectedItem() const {
  return selected_ == nullptr ? std::string() : selected_->title();
}

}  // namespace fakes
