#pragma once

#import <AppKit/AppKit.h>

#include "ui/Sheets.h"

namespace ui::appkit {

/// One of the interface file's windows, shown as a sheet.
class SheetAdapter final : public Sheet {
 public:
  explicit SheetAdapter(NSWindow* window) : window_(window) {}
  NSWindow* window() const { return window_; }

 private:
  NSWindow* window_;
};

}  // namespace ui::appkit
