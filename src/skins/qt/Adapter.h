#pragma once

#include <QObject>
#include <QWidget>

#include "skins/qt/FrameOrigin.h"
#include "ui/Controls.h"
#include "ui/Log.h"
#include "ui/PopUpButton.h"

namespace ui::qt {

/// Anything that can be told what to send when the user works it.
class ActionSource {
 public:
  virtual ~ActionSource() = default;
  virtual void setAction(Action action) = 0;
};

/// Sends an action; what it throws is logged and goes no further. The action may destroy its sender
/// and the place where it is kept, so it is handed over as a copy.
inline void send(Action action, Object* sender) {
  if (action) {
    guarded([&] { action(sender); });
  }
}

/// What all controls share, over a widget that lives longer than the adapter.
template <class Interface, class Widget>
class Adapter : public Interface {
 public:
  explicit Adapter(Widget& widget) : widget_(widget) {}

  bool isHidden() const override { return widget_.isHidden(); }
  void setHidden(bool hidden) override { widget_.setHidden(hidden); }
  /// Its own state, whatever that of the widgets around it.
  bool isEnabled() const override { return !widget_.testAttribute(Qt::WA_ForceDisabled); }
  void setEnabled(bool enabled) override { widget_.setEnabled(enabled); }
  Point frameOrigin() const override { return qt::frameOrigin(widget_); }
  void setFrameOrigin(Point origin) override { qt::setFrameOrigin(widget_, origin); }

  Widget& widget() const { return widget_; }

 protected:
  /// Receiver of the widget's signals, so that they end with the adapter.
  const QObject* receiver() const { return &receiver_; }

 private:
  Widget& widget_;
  QObject receiver_;
};

}  // namespace ui::qt
