#pragma once

#include <memory>
#include <vector>

#include "ui/Controls.h"

namespace ui {

/// One page of a tab view. Owned by the tab view.
class UI_EXPORT TabViewItem : public Object {
 public:
  ~TabViewItem() override;
};

class UI_EXPORT TabViewDelegate {
 public:
  virtual ~TabViewDelegate();
  /// False refuses the change, and so does an exception.
  virtual bool shouldSelectTabViewItem(TabViewItem* item) = 0;
  /// The change is about to happen; the selected item is still the old one.
  virtual void willSelectTabViewItem(TabViewItem* item) = 0;
};

/// The delegate is asked whether a user or code selects an item, even one that is already selected.
/// Code that selects gets what the delegate throws; for a user it is logged.
class UI_EXPORT TabView : public View {
 public:
  ~TabView() override;
  virtual int indexOfSelectedItem() const = 0;
  /// -1 for an item of another tab view.
  int indexOfItem(const TabViewItem* item) const;
  /// Null out of range.
  TabViewItem* itemAtIndex(int index);
  virtual void selectItemAtIndex(int index) = 0;
  /// Not owned; null removes it.
  virtual void setDelegate(TabViewDelegate* delegate) = 0;

 protected:
  /// Makes one item for every page. Called once.
  void makeItems(int count);

 private:
  std::vector<std::unique_ptr<TabViewItem>> items_;
};

}  // namespace ui
