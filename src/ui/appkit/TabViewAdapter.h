#pragma once

#include "ui/TabView.h"
#include "ui/appkit/Adapter.h"
#include "ui/appkit/Retained.h"

@class Velk_TabViewDelegate;

namespace ui::appkit {

/// Pages with tabs or without.
class TabViewAdapter final : public Adapter<TabView, NSTabView> {
 public:
  explicit TabViewAdapter(NSTabView* tabs);
  ~TabViewAdapter() override;

  int indexOfSelectedItem() const override;
  void selectItemAtIndex(int index) override;
  void setDelegate(TabViewDelegate* delegate) override;

 private:
  Retained<Velk_TabViewDelegate*> nativeDelegate_;
};

}  // namespace ui::appkit
