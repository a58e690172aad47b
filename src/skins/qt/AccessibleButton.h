#pragma once

namespace ui::qt {

/// Lets assistive tools press and toggle `PushButton` and `CheckBox` the way a click does. Qt's own
/// way of toggling changes a button's state without clicking it, so that its action would never be
/// sent.
///
/// The halves of a segmented control are radio buttons to such a tool.
void installAccessibleButtons();

}  // namespace ui::qt
