#pragma once

#include "ui/InterfaceFile.h"

namespace ui {
struct Toolkit;
}

namespace ui::qt {

class QtView;

/// Makes a control for every widget of the view that names outlets or actions, fills the objects'
/// outlets and connects the actions. The view takes ownership of the controls. Throws
/// `InterfaceError`, whose message describes the fault but does not name the file.
void wire(QtView& view, InterfaceObjects& objects, Toolkit& toolkit);

}  // namespace ui::qt
