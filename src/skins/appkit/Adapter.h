#pragma once

#import <AppKit/AppKit.h>

#include "ui/Controls.h"

namespace ui::appkit {

inline Point pointOf(NSPoint point) {
  return {static_cast<double>(point.x), static_cast<double>(point.y)};
}

inline NSPoint nsPoint(Point point) {
  return NSMakePoint(static_cast<CGFloat>(point.x), static_cast<CGFloat>(point.y));
}

inline Size sizeOf(NSSize size) {
  return {static_cast<double>(size.width), static_cast<double>(size.height)};
}

inline NSSize nsSize(Size size) {
  return NSMakeSize(static_cast<CGFloat>(size.width), static_cast<CGFloat>(size.height));
}

inline bool canBeEnabled(NSView* view) {
  return [view respondsToSelector:@selector(setEnabled:)];
}

/// What all controls have in common. The view must outlive the adapter.
template <class Interface, class Control>
class Adapter : public Interface {
 public:
  explicit Adapter(Control* control) : control_(control) {}

  bool isHidden() const override { return [control_ isHidden] == YES; }
  void setHidden(bool hidden) override { [control_ setHidden:hidden ? YES : NO]; }
  /// A view that cannot be disabled counts as enabled.
  bool isEnabled() const override {
    const id control = control_;
    return !canBeEnabled(control_) || [control isEnabled] == YES;
  }
  void setEnabled(bool enabled) override {
    if (canBeEnabled(control_)) {
      const id control = control_;
      [control setEnabled:enabled ? YES : NO];
    }
  }
  Point frameOrigin() const override { return pointOf([control_ frame].origin); }
  void setFrameOrigin(Point origin) override { [control_ setFrameOrigin:nsPoint(origin)]; }

  Control* control() const { return control_; }

 private:
  Control* control_;
};

}  // namespace ui::appkit
