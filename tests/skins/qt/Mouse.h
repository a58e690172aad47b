#pragma once

class QComboBox;
class QSlider;
class QTabWidget;
class QWidget;

/// What a user does with the mouse.
namespace qt_test {

void clickOn(QWidget& widget);
/// Opens the menu and clicks the item. Does nothing if the menu is disabled.
void pickItem(QComboBox& box, int index);
/// Clicks the slider where its value becomes `value`. Throws if there is no such pixel.
void clickAt(QSlider& slider, int value);
void clickTab(QTabWidget& tabs, int index);

}  // namespace qt_test
