#pragma once

#include "skins/appkit/Adapter.h"
#include "skins/appkit/Retained.h"
#include "ui/TabView.h"

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
