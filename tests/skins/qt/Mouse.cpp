#include "skins/qt/Mouse.h"

#include <QAbstractItemView>
#include <QCheckBox>
#include <QComboBox>
#include <QSlider>
#include <QStyle>
#include <QTabBar>
#include <QTabWidget>
#include <QTest>
#include <stdexcept>

namespace qt_test {

void clickOn(QWidget& widget) {
  // A check box reacts only to clicks on its box and title, which may end left of its centre.
  const QPoint place = qobject_cast<QCheckBox*>(&widget) != nullptr ? QPoint(8, widget.height() / 2)
                                                                    : widget.rect().center();
  QTest::mouseClick(&widget, Qt::LeftButton, {}, place);
}

void pickItem(QComboBox& box, int index) {
  if (!box.isEnabled()) {
    return;
  }
  box.showPopup();
  QAbstractItemView* menu = box.view();
  const QModelIndex item = box.model()->index(index, 0);
  menu->scrollTo(item);
  const QPoint place = menu->visualRect(item).center();
  QTest::mouseMove(menu->viewport(), place);
  QTest::mouseClick(menu->viewport(), Qt::LeftButton, {}, place);
}

void clickAt(QSlider& slider, int value) {
  const int handle = slider.style()->pixelMetric(QStyle::PM_SliderLength, nullptr, &slider);
  for (int x = 0; x < slider.width(); ++x) {
    if (QStyle::sliderValueFromPosition(slider.minimum(), slider.maximum(), x - (handle - 1) / 2,
                                        slider.width() - handle) == value) {
      QTest::mouseClick(&slider, Qt::LeftButton, {}, QPoint(x, slider.height() / 2));
      return;
    }
  }
  throw std::out_of_range("no place on the slider stands for the value");
}

void clickTab(QTabWidget& tabs, int index) {
  QTest::mouseClick(tabs.tabBar(), Qt::LeftButton, {}, tabs.tabBar()->tabRect(index).center());
}

}  // namespace qt_test
