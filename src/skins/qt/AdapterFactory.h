#pragma once

#include <memory>

#include "ui/Object.h"

class QWidget;

namespace ui {
class Bundle;
class Localization;
}  // namespace ui

namespace ui::qt {

/// The control over a widget, chosen by the widget's class. Every widget is a view at least.
std::unique_ptr<Object> makeAdapter(QWidget& widget, const Bundle& bundle,
                                    const Localization& localization);

}  // namespace ui::qt
