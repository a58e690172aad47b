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

/// The widget of a custom view. It owns the view's objects, their controls and services, and takes
/// them down while its child widgets are still there.
///
/// Its size is fixed to what the custom view wants; who wants another asks `setFrameSize`.
///
/// Key presses go to the custom view, whichever control in the view has the focus, and then take
/// Qt's own way. Presses in other windows, in an open menu or where text is edited are not the
/// view's.
class QtView final : public QWidget, public NativeView {
 public:
  explicit QtView(QWidget* parent = nullptr);
  ~QtView() override;

  // What an interface loader puts into it. All live as long as the view.
  void setSkinStyle(std::unique_ptr<QStyle> style);
  void setServices(std::unique_ptr<ViewServices> services);
  void setObjects(std::unique_ptr<InterfaceObjects> objects);
  void addControl(std::unique_ptr<Object> control);
  /// Once all widgets are there: from now on their key presses and clicks are seen.
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
  void parentChanged();
  void windowMayHaveChanged();
  bool isControlOfThisWindow(const QObject* object) const;
  bool hasFocusedControl() const;
  /// Lets the custom view have a press. True if it was handed on to Qt's own handling.
  bool dispatch(QKeyEvent& event);

  std::unique_ptr<QStyle> style_;
  std::unique_ptr<ViewServices> services_;
  std::vector<std::unique_ptr<Object>> controls_;
  std::unique_ptr<InterfaceObjects> objects_;
  std::function<void(Size)> frameSizeObserver_;
  Size size_;
  /// The window that the custom view was last told of; only its identity counts.
  const QWidget* window_ = nullptr;
  /// The press that the custom view has handed on.
  const void* handedOn_ = nullptr;
};

}  // namespace ui::qt
