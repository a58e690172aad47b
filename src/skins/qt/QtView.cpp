#include "skins/qt/QtView.h"

#include <QApplication>
#include <QKeyEvent>
#include <QStyle>
#include <cmath>
#include <utility>

#include "skins/qt/KeyCodes.h"
#include "skins/qt/ViewServices.h"
#include "ui/Log.h"

namespace ui::qt {

QtView::QtView(QWidget* parent) : QWidget(parent) {
  setFocusPolicy(Qt::StrongFocus);
}

QtView::~QtView() {
  // The teardown must no longer reach the host's observer.
  frameSizeObserver_ = nullptr;
  for (QWidget* control : findChildren<QWidget*>()) {
    control->removeEventFilter(this);
  }
  runGuarded([this] { objects_.reset(); });
  services_.reset();
  controls_.clear();
}

void QtView::setSkinStyle(std::unique_ptr<QStyle> style) {
  style_ = std::move(style);
}

void QtView::setServices(std::unique_ptr<ViewServices> services) {
  services_ = std::move(services);
}

void QtView::setObjects(std::unique_ptr<InterfaceObjects> objects) {
  objects_ = std::move(objects);
}

void QtView::addControl(std::unique_ptr<Object> control) {
  controls_.push_back(std::move(control));
}

void QtView::watchControls() {
  for (QWidget* control : findChildren<QWidget*>()) {
    if (control->window() != window()) {
      continue;
    }
    control->installEventFilter(this);
    // A click leaves the focus on the view; Tab still reaches every control.
    if (control->focusPolicy() != Qt::NoFocus) {
      control->setFocusPolicy(Qt::TabFocus);
    }
  }
}

void QtView::setFrameSize(Size size) {
  runGuarded([&] { objects_->view().setFrameSize(size); });
}

void QtView::setFrameSizeObserver(std::function<void(Size)> observer) {
  frameSizeObserver_ = std::move(observer);
}

Size QtView::frameSize() const {
  return size_;
}

void QtView::applyFrameSize(Size size) {
  const bool changed = size != size_;
  size_ = size;
  setFixedSize(std::max(0, static_cast<int>(std::lround(size.width))),
               std::max(0, static_cast<int>(std::lround(size.height))));
  if (changed && frameSizeObserver_) {
    const std::function<void(Size)> observer = frameSizeObserver_;
    runGuarded([&] { observer(size); });
  }
}

bool QtView::hasWindow() const {
  return !isWindow() || isVisible();
}

void QtView::makeFirstResponder() {
  setFocus(Qt::OtherFocusReason);
}

void QtView::interpretKeyEvents(const KeyEvent& event) {
  passedOn_ = event.native;
}

bool QtView::event(QEvent* event) {
  switch (event->type()) {
    case QEvent::ParentChange:
      handleParentChange();
      break;
    case QEvent::KeyPress:
      // Presses that a control ignored propagate up to here; the event filter has dispatched those.
      if (!hasFocusedControl() && !dispatch(static_cast<QKeyEvent&>(*event))) {
        return true;
      }
      break;
    default:
      break;
  }
  return QWidget::event(event);
}

bool QtView::eventFilter(QObject* watched, QEvent* event) {
  if (!isControlOfThisWindow(watched)) {
    return false;
  }
  if (event->type() == QEvent::MouseButtonPress) {
    makeFirstResponder();
    return false;
  }
  const auto* control = static_cast<const QWidget*>(watched);
  if (event->type() == QEvent::KeyPress && control == QApplication::focusWidget() &&
      QApplication::activePopupWidget() == nullptr &&
      !control->testAttribute(Qt::WA_InputMethodEnabled)) {
    return !dispatch(static_cast<QKeyEvent&>(*event));
  }
  return false;
}

void QtView::showEvent(QShowEvent* event) {
  QWidget::showEvent(event);
  announceWindow();
}

void QtView::hideEvent(QHideEvent* event) {
  QWidget::hideEvent(event);
  if (isWindow()) {
    window_ = nullptr;
  }
}

void QtView::handleParentChange() {
  if (!objects_) {
    return;
  }
  const bool hasNewSuperview = parentWidget() != nullptr;
  runGuarded([&] { objects_->view().viewWillMoveToSuperview(hasNewSuperview); });
  if (hasNewSuperview) {
    announceWindow();
  } else {
    window_ = nullptr;
    services_->sheets().cancelAll();
  }
}

void QtView::announceWindow() {
  if (objects_ && hasWindow() && std::exchange(window_, window()) != window()) {
    runGuarded([this] { objects_->view().viewDidMoveToWindow(); });
  }
}

bool QtView::isControlOfThisWindow(const QObject* object) const {
  return object->isWidgetType() && static_cast<const QWidget*>(object)->window() == window();
}

bool QtView::hasFocusedControl() const {
  const QWidget* focused = QApplication::focusWidget();
  return focused != nullptr && focused != this && isAncestorOf(focused);
}

bool QtView::dispatch(QKeyEvent& event) {
  if (!objects_) {
    return true;
  }
  // The key press may destroy this view.
  const QPointer<QtView> self = this;
  passedOn_ = nullptr;
  runGuarded([&] { objects_->view().keyDown({positionCode(event), &event}); });
  return self != nullptr && std::exchange(passedOn_, nullptr) == &event;
}

}  // namespace ui::qt
