#pragma once

#include "ui/TabView.h"
#include "view/fakes/FakeControls.h"

namespace fakes {

/// Two pages; the first is selected.
class FakeTabView final : public FakeControl<ui::TabView> {
 public:
  FakeTabView(CallLog& log, std::string name);

  void userClicks(int index);
  ui::TabViewDelegate* delegate() const { return delegate_; }

  int indexOfSelectedItem() const override { return selected_; }
  void selectItemAtIndex(int index) override;
  void setDelegate(ui::TabViewDelegate* delegate) override;

 private:
  int selected_ = 0;
  ui::TabViewDelegate* delegate_ = nullptr;
};

}  // namespace fakes
