#pragma once

namespace ui {
class AssertionHandler;
class NotificationCenter;
class Object;
}  // namespace ui

/// What the test asks of a library that is loaded into the process.
extern "C" {
/// A button, a sheet, a pop-up button's item; the caller owns it.
using MakeObject = ui::Object* (*)();
using ThrowSomething = void (*)();
using DefaultCenter = ui::NotificationCenter* (*)();
}
