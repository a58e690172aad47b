#include "view/fakes/FakeNativeView.h"

#include <stdexcept>
#include <utility>

namespace fakes {

FakeNativeView::FakeNativeView(CallLog& log, FakeToolkit& toolkit) : log_(log), toolkit_(toolkit) {}

FakeNativeView::~FakeNativeView() {
  observer_ = {};
  objects_.reset();
  toolkit_.sheets.cancelAll();
}

void FakeNativeView::moveToSuperview(bool inWindow) {
  objects_->view().viewWillMoveToSuperview(true);
  if (hasWindow_ != inWindow) {
    hasWindow_ = inWindow;
    objects_->view().viewDidMoveToWindow();
  }
}

void FakeNativeView::removeFromSuperview() {
  objects_->view().viewWillMoveToSuperview(false);
  toolkit_.sheets.cancelAll();
  if (hasWindow_) {
    hasWindow_ = false;
    objects_->view().viewDidMoveToWindow();
  }
}

void FakeNativeView::pressKey(std::uint16_t keyCode) {
  ui::KeyEvent event;
  event.keyCode = keyCode;
  objects_->view().keyDown(event);
}

void FakeNativeView::setObjects(std::unique_ptr<ui::InterfaceObjects> objects) {
  objects_ = std::move(objects);
}

void FakeNativeView::addControl(const std::string& name, std::unique_ptr<ui::Object> control) {
  controls_[name] = std::move(control);
}

void FakeNativeView::setFrameSize(ui::Size size) {
  objects_->view().setFrameSize(size);
}

void FakeNativeView::setFrameSizeObserver(std::function<void(ui::Size)> observer) {
  observer_ = std::move(observer);
}

void FakeNativeView::applyFrameSize(ui::Size size) {
  log_.add("native.applyFrameSize ", size.width, " x ", size.height);
  if (cannotResize) {
    throw std::runtime_error("the view cannot be resized");
  }
  const bool changed = size != size_;
  size_ = size;
  if (changed && observer_) {
    observer_(size);
  }
}

void FakeNativeView::makeFirstResponder() {
  log_.add("native.makeFirstResponder");
}

void FakeNativeView::interpretKeyEvents(const ui::KeyEvent& event) {
  log_.add("native.interpretKeyEvents ", event.keyCode);
}

}  // namespace fakes
