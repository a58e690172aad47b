#include "fakes/FakeTabView.h"

#include <utility>

namespace fakes {

FakeTabView::FakeTabView(CallLog& log, std::string name) : FakeControl(log, std::move(name)) {
  items_.push_back(std::make_unique<ui::TabViewItem>());
  items_.push_back(std::make_unique<ui::TabViewItem>());
}

void FakeTabView::userClicks(int index) {
  ui::TabViewItem* item = itemAtIndex(index);
  if (item == nullptr || (delegate_ != nullptr && !delegate_->shouldSelectTabViewItem(item))) {
    return;
  }
  if (delegate_ != nullptr) {
    delegate_->willSelectTabViewItem(item);
  }
  selected_ = index;
}

int FakeTabView::indexOfItem(const ui::TabViewItem* item) const {
  for (std::size_t index = 0; index < items_.size(); ++index) {
    if (items_[index].get() == item) {
      return static_cast<int>(index);
    }
  }
  return -1;
}

ui::TabViewItem* FakeTabView::itemAtIndex(int index) {
  const auto place = static_cast<std::size_t>(index);
  return index >= 0 && place < items_.size() ? items_[place].get() : nullptr;
}

void FakeTabView::selectItemAtIndex(int index) {
  record("selectItemAtIndex ", index);
  userClicks(index);
}

void FakeTabView::setDelegate(ui::TabViewDelegate* delegate) {
  record("setDelegate ", delegate == nullptr ? "none" : "view");
  delegate_ = delegate;
}

}  // namespace fakes
