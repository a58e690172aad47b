#pragma once

#include "ui/InterfaceFile.h"

namespace ui {
struct Toolkit;
}

namespace ui::qt {

class QtView;

/// Makes a control over every widget of the view that names outlets or actions, fills the objects'
/// outlets and connects their actions. The view owns the controls from then on. Throws
/// `InterfaceError`, whose message names the fault but not the file.
void wire(QtView& view, InterfaceObjects& objects, Toolkit& toolkit);

}  // namespace ui::qt
