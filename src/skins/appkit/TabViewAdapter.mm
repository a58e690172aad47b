#include "skins/appkit/TabViewAdapter.h"

#include "ui/Log.h"

/// Hands the tab view's questions on to the core's delegate.
@interface Velk_TabViewDelegate : NSObject
#ifndef GNUSTEP
                                  <NSTabViewDelegate>
#endif
{
  ui::TabViewDelegate* _delegate;
  ui::TabView* _tabs;
}
- (void)setDelegate:(ui::TabViewDelegate*)delegate ofTabs:(ui::TabView*)tabs;
@end

@implementation Velk_TabViewDelegate

- (void)setDelegate:(ui::TabViewDelegate*)delegate ofTabs:(ui::TabView*)tabs {
  _delegate = delegate;
  _tabs = tabs;
}

- (ui::TabViewItem*)item:(NSTabViewItem*)item of:(NSTabView*)tabs {
  return _tabs == nullptr ? nullptr
                          : _tabs->itemAtIndex(static_cast<int>([tabs indexOfTabViewItem:item]));
}

- (BOOL)tabView:(NSTabView*)tabs shouldSelectTabViewItem:(NSTabViewItem*)item {
  ui::TabViewDelegate* const delegate = _delegate;
  ui::TabViewItem* const requested = [self item:item of:tabs];
  bool allowed = true;
  if (delegate != nullptr) {
    ui::guarded([&] { allowed = delegate->shouldSelectTabViewItem(requested); });
  }
  return allowed ? YES : NO;
}

- (void)tabView:(NSTabView*)tabs willSelectTabViewItem:(NSTabViewItem*)item {
  ui::TabViewDelegate* const delegate = _delegate;
  ui::TabViewItem* const next = [self item:item of:tabs];
  if (delegate != nullptr) {
    ui::guarded([&] { delegate->willSelectTabViewItem(next); });
  }
}

@end

namespace ui::appkit {

TabViewAdapter::TabViewAdapter(NSTabView* tabs)
    : Adapter(tabs),
      nativeDelegate_(Retained<Velk_TabViewDelegate*>::adopt([[Velk_TabViewDelegate alloc] init])) {
  makeItems(static_cast<int>([tabs numberOfTabViewItems]));
  [tabs setDelegate:nativeDelegate_.get()];
}

TabViewAdapter::~TabViewAdapter() {
  [nativeDelegate_.get() setDelegate:nullptr ofTabs:nullptr];
  [control() setDelegate:nil];
}

int TabViewAdapter::indexOfSelectedItem() const {
  return static_cast<int>([control() indexOfTabViewItem:[control() selectedTabViewItem]]);
}

void TabViewAdapter::selectItemAtIndex(int index) {
  if (itemAtIndex(index) != nullptr) {
    [control() selectTabViewItemAtIndex:index];
  }
}

void TabViewAdapter::setDelegate(TabViewDelegate* delegate) {
  [nativeDelegate_.get() setDelegate:delegate ofTabs:this];
}

}  // namespace ui::appkit
