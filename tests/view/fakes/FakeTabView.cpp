#include "view/fakes/FakeTabView.h"

#include <utility>

namespace fakes {

FakeTabView::FakeTabView(CallLog& log, std::string name) : FakeControl(log, std::move(name)) {
  makeItems(2);
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

void FakeTabView::selectItemAtIndex(int index) {
  record("selectItemAtIndex ", index);
  userClicks(index);
}

void FakeTabView::setDelegate(ui::TabViewDelegate* delegate) {
  record("setDelegate ", delegate == nullptr ? "none" : "view");
  delegate_ = delegate;
}

}  // namespace fakes
