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
  /// The change follows; the selected item is still the old one.
  virtual void willSelectTabViewItem(TabViewItem* item) = 0;
};

/// The delegate is asked the same way whether a user or code selects, and also when the item is
/// selected already.
class UI_EXPORT TabView : public View {
 public:
  ~TabView() override;
  virtual int indexOfSelectedItem() const = 0;
  /// -1 for an item of another tab view.
  int indexOfItem(const TabViewItem* item) const;
  /// Null where there is none.
  TabViewItem* itemAtIndex(int index);
  virtual void selectItemAtIndex(int index) = 0;
  /// Not owned; null removes it.
  virtual void setDelegate(TabViewDelegate* delegate) = 0;

 protected:
  /// One for every page; once.
  void makeItems(int count);

 private:
  std::vector<std::unique_ptr<TabViewItem>> items_;
};

}  // namespace ui
