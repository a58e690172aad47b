#pragma once

class QWidget;

namespace ui {
class Bundle;
}

namespace ui::qt {

/// Looks every caption up in the bundle's strings table that the widget and those within it show or
/// have read out: texts, titles, tabs, menu items, tool tips, and accessible names part by part, as
/// commas separate them.
void translateCaptions(QWidget& widget, const Bundle& bundle);

}  // namespace ui::qt
