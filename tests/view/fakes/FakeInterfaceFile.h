#pragma once

#include "view/fakes/FakeNativeView.h"
#include "view/fakes/FakeToolkit.h"

namespace fakes {

/// Does what the interface file says beyond "there is a control for every outlet": menus, tags,
/// which button is an on/off button, which control sends which action, and the initial state.
/// Throws `ui::InterfaceError` for an action or a control that does not exist.
void layOutInterface(FakeNativeView& view, CallLog& log);

/// Names of the controls that fill no outlet: the help button of the listening-test page and the
/// results sheet's OK button.
inline constexpr const char* kListeningTestHelpButton = "listeningTestHelpButton";
inline constexpr const char* kResultsOKButton = "resultsOKButton";

}  // namespace fakes
