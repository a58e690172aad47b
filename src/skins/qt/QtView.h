#pragma once

#include <QPointer>
#include <QWidget>
#include <functional>
#include <memory>
#include <vector>

#include "ui/CustomView.h"
#include "ui/InterfaceFile.h"

class QKeyEvent;
class QStyle;

namespace ui::qt {

class ViewServices;

/// The widget of a custom view. It owns the view's objects, their controls and services, and
/// destroys them while its child widgets still exist.
///
/// Its size is fixed to what the custom view wants; use `setFrameSize` to ask for another.
///
/// Key presses go first to the custom view, whichever of its controls has the focus; those that it
/// passes on then take Qt's usual path. The view does not get presses in other windows, in an open
/// menu or where text is being edited.
class QtView final : public QWidget, public NativeView {
 public:
  explicit QtView(QWidget* parent = nullptr);
  ~QtView() override;

  // For the interface loader. The view owns all of these.
  void setSkinStyle(std::unique_ptr<QStyle> style);
  void setServices(std::unique_ptr<ViewServices> services);
  void setObjects(std::unique_ptr<InterfaceObjects> objects);
  void addControl(std::unique_ptr<Object> control);
  /// Starts to watch the key presses and clicks of all child widgets, which must exist by now.
  void watchControls();

  InterfaceObjects& objects() { return *objects_; }

  void setFrameSize(Size size) override;
  void setFrameSizeObserver(std::function<void(Size)> observer) override;
  Size frameSize() const override;
  void applyFrameSize(Size size) override;
  bool hasWindow() const override;
  void makeFirstResponder() override;
  void interpretKeyEvents(const KeyEvent& event) override;

 protected:
  bool event(QEvent* event) override;
  bool eventFilter(QObject* watched, QEvent* event) override;
  void showEvent(QShowEvent* event) override;
  void hideEvent(QHideEvent* event) override;

 private:
  void handleParentChange();
  /// Tells the custom view if its window has changed.
  void announceWindow();
  bool isControlOfThisWindow(const QObject* object) const;
  bool hasFocusedControl() const;
  /// Gives a key press to the custom view. Returns whether that passed it on to Qt.
  bool dispatch(QKeyEvent& event);

  std::unique_ptr<QStyle> style_;
  std::unique_ptr<ViewServices> services_;
  std::vector<std::unique_ptr<Object>> controls_;
  std::unique_ptr<InterfaceObjects> objects_;
  std::function<void(Size)> frameSizeObserver_;
  Size size_;
  /// The window that the custom view was last told about. Only compared: it may be gone.
  const QWidget* window_ = nullptr;
  /// The key press that the custom view has passed on.
  const void* passedOn_ = nullptr;
};

}  // namespace ui::qt
