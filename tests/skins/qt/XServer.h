#pragma once

#include <QProcess>
#include <QString>
#include <string>

namespace qt_test {

/// An X server without a screen that lives as long as this object, with a keyboard that a test
/// types on. The server chooses its own display, which becomes this process's `DISPLAY`.
///
/// Not a window manager: whoever shows a window gives it the keys by `focus`.
class XServer {
 public:
  /// Throws `std::runtime_error` if no server comes up.
  XServer();
  XServer(const XServer&) = delete;
  XServer& operator=(const XServer&) = delete;
  ~XServer();

  /// Gives the keyboard a layout: "us", "de", "fr".
  void setLayout(const std::string& layout) const;
  /// Presses and releases a key of the keyboard by its number in Linux's input-event-codes,
  /// whatever the layout has made of it.
  void pressKey(unsigned evdev) const;
  /// Lets a window have the keys.
  void focus(unsigned long window) const;

 private:
  static void run(const QString& program, const QStringList& arguments);

  QProcess server_;
};

}  // namespace qt_test
