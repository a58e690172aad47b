#pragma once

#include <memory>

#include "ui/Object.h"

class QWidget;

namespace ui {
class Bundle;
class Localization;
}  // namespace ui

namespace ui::qt {

/// Makes the control for a widget, chosen by the widget's class; a plain view if no other fits. The
/// widget and the localization must outlive it.
std::unique_ptr<Object> makeAdapter(QWidget& widget, const Bundle& bundle,
                                    const Localization& localization);

}  // namespace ui::qt
