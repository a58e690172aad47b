#pragma once

#include <cstdint>
#include <functional>

#include "ui/Geometry.h"
#include "ui/Object.h"

namespace ui {

/// A key press. `native` is the toolkit's own event, valid during the call.
struct KeyEvent {
  /// Position code (virtual key code of the US-ANSI layout); codes above 126 are no key.
  std::uint16_t keyCode = 0xFFFF;
  const void* native = nullptr;
};

/// What a toolkit tells a custom view.
class UI_EXPORT CustomView {
 public:
  virtual ~CustomView();
  virtual void viewWillMoveToSuperview(bool hasNewSuperview) = 0;
  virtual void viewDidMoveToWindow() = 0;
  /// A size request from outside; the view decides what to do about it.
  virtual void setFrameSize(Size size) = 0;
  virtual void keyDown(const KeyEvent& event) = 0;
};

/// The toolkit's view behind a custom view: what a host puts into its window, and what the custom
/// view uses as its base class. Main thread only.
///
/// In the Qt skin it is also a QWidget: `dynamic_cast<QWidget*>`. A host that gives the widget a
/// parent gives up ownership to that parent.
class UI_EXPORT NativeView : public Object {
 public:
  ~NativeView() override;

  /// For hosts: requests a size. The view may refuse it, or take it or another one later.
  virtual void setFrameSize(Size size) = 0;
  /// For hosts: called whenever the view has changed its size. Must not destroy the view.
  virtual void setFrameSizeObserver(std::function<void(Size)> observer) = 0;
  virtual Size frameSize() const = 0;

  /// For the custom view: takes the size without asking.
  virtual void applyFrameSize(Size size) = 0;
  virtual bool hasWindow() const = 0;
  virtual void makeFirstResponder() = 0;
  /// Passes a key press on to the toolkit's own handling.
  virtual void interpretKeyEvents(const KeyEvent& event) = 0;
};

}  // namespace ui
