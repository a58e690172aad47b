#include "skins/qt/TabViewAdapter.h"

namespace ui::qt {

TabViewAdapter::TabViewAdapter(QTabWidget& tabs) : Adapter(tabs), tabs_(&tabs) {
  makeItems(tabs.count());
  selected_ = tabs.currentIndex();
  QObject::connect(&tabs, &QTabWidget::currentChanged, receiver(),
                   [this](int index) { handleUserSelection(index); });
  // Qt emits no change for a click on the current tab, but the delegate must be asked.
  QObject::connect(&tabs, &QTabWidget::tabBarClicked, receiver(), [this](int index) {
    if (index >= 0 && index == selected_) {
      runGuarded([&] { selectItemAtIndex(index); });
    }
  });
}

TabViewAdapter::TabViewAdapter(QStackedWidget& pages) : Adapter(pages), pages_(&pages) {
  makeItems(pages.count());
  selected_ = pages.currentIndex();
}

int TabViewAdapter::indexOfSelectedItem() const {
  return selected_;
}

void TabViewAdapter::selectItemAtIndex(int index) {
  TabViewItem* item = itemAtIndex(index);
  if (item == nullptr) {
    return;
  }
  if (delegate_ != nullptr) {
    if (!delegate_->shouldSelectTabViewItem(item)) {
      return;
    }
    delegate_->willSelectTabViewItem(item);
  }
  selected_ = index;
  showPage(index);
}

void TabViewAdapter::setDelegate(TabViewDelegate* delegate) {
  delegate_ = delegate;
}

void TabViewAdapter::showPage(int index) {
  if (tabs_ != nullptr) {
    tabs_->setCurrentIndex(index);
  } else {
    pages_->setCurrentIndex(index);
  }
}

void TabViewAdapter::handleUserSelection(int index) {
  if (index == selected_) {
    return;
  }
  showPage(selected_);
  runGuarded([&] { selectItemAtIndex(index); });
}

}  // namespace ui::qt
