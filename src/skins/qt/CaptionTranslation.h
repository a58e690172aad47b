#pragma once

class QWidget;

namespace ui {
class Bundle;
}

namespace ui::qt {

/// Replaces every caption of the widget and its children by its entry in the bundle's strings
/// table: texts, titles, tabs, menu items, tool tips and accessible names. The comma-separated
/// parts of an accessible name are looked up one by one.
void translateCaptions(QWidget& widget, const Bundle& bundle);

}  // namespace ui::qt
