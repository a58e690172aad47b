#pragma once

#include <cstdint>
#include <functional>

#include "ui/Geometry.h"
#include "ui/Object.h"

namespace ui {

/// A key press. `native` is the toolkit's own event, valid during the call.
struct KeyEvent {
  /// Position code (virtual key code of the US-ANSI layout); codes above 126 stand for no key.
  std::uint16_t keyCode = 0xFFFF;
  const void* native = nullptr;
};

/// What a toolkit tells a view of its own.
class UI_EXPORT CustomView {
 public:
  virtual ~CustomView();
  virtual void viewWillMoveToSuperview(bool hasNewSuperview) = 0;
  virtual void viewDidMoveToWindow() = 0;
  /// A size request from outside; the view decides what becomes of it.
  virtual void setFrameSize(Size size) = 0;
  virtual void keyDown(const KeyEvent& event) = 0;
};

/// The toolkit's view that a custom view lives in: what a host puts into its window, and what the
/// custom view asks of its base class. Main thread only.
///
/// In the Qt skin it is a QWidget as well: `dynamic_cast<QWidget*>`. A host that gives the widget a
/// parent releases it to that parent.
class UI_EXPORT NativeView : public Object {
 public:
  ~NativeView() override;

  /// For hosts: asks for a size. The view may refuse it, answer it later or with another one.
  virtual void setFrameSize(Size size) = 0;
  /// For hosts: called whenever the view has changed its size. Not the place to destroy the view.
  virtual void setFrameSizeObserver(std::function<void(Size)> observer) = 0;
  virtual Size frameSize() const = 0;

  /// For the custom view: really takes the size.
  virtual void applyFrameSize(Size size) = 0;
  virtual bool hasWindow() const = 0;
  virtual void makeFirstResponder() = 0;
  /// Hands a key press on to the toolkit's own handling.
  virtual void interpretKeyEvents(const KeyEvent& event) = 0;
};

}  // namespace ui
