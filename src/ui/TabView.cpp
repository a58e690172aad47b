#include "ui/TabView.h"

#include <cstddef>

namespace ui {

TabViewItem::~TabViewItem() = default;
TabViewDelegate::~TabViewDelegate() = default;
TabView::~TabView() = default;

void TabView::makeItems(int count) {
  for (int index = 0; index < count; ++index) items_.push_back(std::make_unique<TabViewItem>());
}

int TabView::indexOfItem(const TabViewItem* item) const {
  for (std::size_t index = 0; index < items_.size(); ++index) {
    if (items_[index].get() == item) return static_cast<int>(index);
  }
  return -1;
}

TabViewItem* TabView::itemAtIndex(int index) {
  const auto place = static_cast<std::size_t>(index);
  return index >= 0 && place < items_.size() ? items_[place].get() : nullptr;
}

}  // namespace ui
