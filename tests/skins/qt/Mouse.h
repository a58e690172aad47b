#pragma once

class QComboBox;
class QSlider;
class QTabWidget;
class QWidget;

/// What a hand on the mouse does.
namespace qt_test {

void clickOn(QWidget& widget);
/// Opens the menu and clicks the item. A disabled menu stays closed.
void pickItem(QComboBox& box, int index);
/// Clicks the place that stands for the value. Throws if no pixel does.
void clickAt(QSlider& slider, int value);
void clickTab(QTabWidget& tabs, int index);

}  // namespace qt_test
