#pragma once

#include <QObject>
#include <QWidget>

#include "skins/qt/FrameOrigin.h"
#include "ui/Controls.h"
#include "ui/Log.h"
#include "ui/PopUpButton.h"

namespace ui::qt {

/// A control that sends an action when the user operates it.
class ActionSource {
 public:
  virtual ~ActionSource() = default;
  virtual void setAction(Action action) = 0;
};

/// Sends an action; anything it throws is logged and goes no further. Takes a copy, because the
/// action may destroy its sender and with it the stored action.
inline void send(Action action, Object* sender) {
  if (action) {
    runGuarded([&] { action(sender); });
  }
}

/// What all controls have in common. The widget must outlive the adapter.
template <class Interface, class Widget>
class Adapter : public Interface {
 public:
  explicit Adapter(Widget& widget) : widget_(widget) {}

  bool isHidden() const override { return widget_.isHidden(); }
  void setHidden(bool hidden) override { widget_.setHidden(hidden); }
  /// The widget's own state, regardless of its parents.
  bool isEnabled() const override { return !widget_.testAttribute(Qt::WA_ForceDisabled); }
  void setEnabled(bool enabled) override { widget_.setEnabled(enabled); }
  Point frameOrigin() const override { return qt::frameOrigin(widget_); }
  void setFrameOrigin(Point origin) override { qt::setFrameOrigin(widget_, origin); }

  Widget& widget() const { return widget_; }

 protected:
  /// Context object for the widget's signals: the connections end with the adapter.
  const QObject* receiver() const { return &receiver_; }

 private:
  Widget& widget_;
  QObject receiver_;
};

}  // namespace ui::qt
