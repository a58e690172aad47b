#include "skins/appkit/TabViewAdapter.h"

#include <exception>
#include <utility>

#include "ui/Log.h"

/// Passes the tab view's questions on to the core's delegate. If that throws when asked whether it
/// allows a change, the change is refused. No exception may pass through the toolkit: it is kept
/// for the code that made the selection, or logged if the user made it.
@interface Velk_TabViewDelegate : NSObject
#ifndef GNUSTEP
                                  <NSTabViewDelegate>
#endif
{
  ui::TabViewDelegate* _delegate;
  ui::TabView* _tabs;
  std::exception_ptr* _failure;
}
- (void)setDelegate:(ui::TabViewDelegate*)delegate ofTabs:(ui::TabView*)tabs;
/// Sets where exceptions are kept; null logs them. Returns the previous place.
- (std::exception_ptr*)keepFailureIn:(std::exception_ptr*)failure;
@end

namespace {

template <class Question>
void ask(std::exception_ptr* failure, const Question& question) {
  if (failure == nullptr) {
    ui::runGuarded(question);
    return;
  }
  try {
    question();
  } catch (...) {
    *failure = std::current_exception();
  }
}

}  // namespace

@implementation Velk_TabViewDelegate

- (void)setDelegate:(ui::TabViewDelegate*)delegate ofTabs:(ui::TabView*)tabs {
  _delegate = delegate;
  _tabs = tabs;
}

- (std::exception_ptr*)keepFailureIn:(std::exception_ptr*)failure {
  return std::exchange(_failure, failure);
}

- (ui::TabViewItem*)item:(NSTabViewItem*)item of:(NSTabView*)tabs {
  return _tabs == nullptr ? nullptr
                          : _tabs->itemAtIndex(static_cast<int>([tabs indexOfTabViewItem:item]));
}

- (BOOL)tabView:(NSTabView*)tabs shouldSelectTabViewItem:(NSTabViewItem*)item {
  ui::TabViewDelegate* const delegate = _delegate;
  ui::TabViewItem* const requested = [self item:item of:tabs];
  bool allowed = delegate == nullptr;
  if (delegate != nullptr) {
    ask(_failure, [&] { allowed = delegate->shouldSelectTabViewItem(requested); });
  }
  return allowed ? YES : NO;
}

- (void)tabView:(NSTabView*)tabs willSelectTabViewItem:(NSTabViewItem*)item {
  ui::TabViewDelegate* const delegate = _delegate;
  ui::TabViewItem* const next = [self item:item of:tabs];
  if (delegate != nullptr) {
    ask(_failure, [&] { delegate->willSelectTabViewItem(next); });
  }
}

@end

namespace ui::appkit {

namespace {

/// Catches what the delegate throws during one selection.
class Failure {
 public:
  /// Retains the delegate, because the selection may destroy the adapter.
  explicit Failure(Retained<Velk_TabViewDelegate*> delegate)
      : delegate_(std::move(delegate)), outer_([delegate_.get() keepFailureIn:&thrown_]) {}
  Failure(const Failure&) = delete;
  Failure& operator=(const Failure&) = delete;
  ~Failure() { [delegate_.get() keepFailureIn:outer_]; }

  const std::exception_ptr& thrown() const { return thrown_; }

 private:
  std::exception_ptr thrown_;
  Retained<Velk_TabViewDelegate*> delegate_;
  std::exception_ptr* outer_;
};

}  // namespace

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
  if (itemAtIndex(index) == nullptr) {
    return;
  }
  const Failure failure(nativeDelegate_);
  [control() selectTabViewItemAtIndex:index];
  if (failure.thrown()) {
    std::rethrow_exception(failure.thrown());
  }
}

void TabViewAdapter::setDelegate(TabViewDelegate* delegate) {
  [nativeDelegate_.get() setDelegate:delegate ofTabs:this];
}

}  // namespace ui::appkit
