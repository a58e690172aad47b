#pragma once

namespace ui {
class AssertionHandler;
class NotificationCenter;
class Object;
}  // namespace ui

/// What the test asks of a library loaded into the process.
extern "C" {
/// A button, a sheet and a pop-up button's item; the caller owns each.
using MakeObject = ui::Object* (*)();
using ThrowSomething = void (*)();
using DefaultCenter = ui::NotificationCenter* (*)();
}
