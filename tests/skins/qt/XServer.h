#pragma once

#include <QProcess>
#include <QString>
#include <string>

namespace qt_test {

/// An X server without a physical screen, and with a keyboard that a test can type on. It chooses
/// its display, which becomes this process's `DISPLAY`, and ends with this object.
///
/// There is no window manager: a test that shows a window has to give it the focus.
class XServer {
 public:
  /// Throws `std::runtime_error` if the server does not start.
  XServer();
  XServer(const XServer&) = delete;
  XServer& operator=(const XServer&) = delete;
  ~XServer();

  /// Sets the keyboard's layout: "us", "de", "fr".
  void setLayout(const std::string& layout) const;
  /// Presses and releases a physical key, given by its number in Linux's input-event-codes.
  void pressKey(unsigned evdev) const;
  /// Gives a window the keyboard focus.
  void focus(unsigned long window) const;

 private:
  static void run(const QString& program, const QStringList& arguments);

  QProcess server_;
};

}  // namespace qt_test
