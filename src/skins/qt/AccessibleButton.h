#pragma once

namespace ui::qt {

/// Makes assistive tools press and toggle `PushButton` and `CheckBox` as a click does. Qt's own
/// toggle action changes the state without a click, so the button's action would never be sent.
///
/// Such tools see the halves of a segmented control as radio buttons.
void installAccessibleButtons();

}  // namespace ui::qt
