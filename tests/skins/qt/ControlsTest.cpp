#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <QAbstractItemView>
#include <QAccessible>
#include <QCheckBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QTest>
#include <QWheelEvent>
#include <memory>
#include <stdexcept>

#include "skins/qt/ButtonAdapter.h"
#include "skins/qt/LampAdapter.h"
#include "skins/qt/Mouse.h"
#include "skins/qt/PopUpBox.h"
#include "skins/qt/PopUpButtonAdapter.h"
#include "skins/qt/QtColors.h"
#include "skins/qt/SegmentedControlAdapter.h"
#include "skins/qt/SliderAdapter.h"
#include "skins/qt/TextFieldAdapter.h"
#include "skins/qt/TextStyle.h"
#include "ui/Localization.h"
#include "view/fakes/LogCapture.h"

namespace {

using testing::ElementsAre;

/// Records who sent each action.
class Actions {
 public:
  ui::Action action() {
    return [this](ui::Object* sender) { senders_.push_back(sender); };
  }
  const std::vector<ui::Object*>& senders() const { return senders_; }

 private:
  std::vector<ui::Object*> senders_;
};

template <class Widget>
void show(Widget& widget) {
  widget.show();
  QApplication::processEvents();
}

TEST(Button, FlipsBeforeItSendsItsAction) {
  QPushButton widget("On");
  widget.setCheckable(true);
  ui::qt::ButtonAdapter button(widget);
  std::vector<int> states;
  button.setAction([&](ui::Object*) { states.push_back(button.state()); });
  show(widget);
  QTest::mouseClick(&widget, Qt::LeftButton);
  button.performClick();
  QTest::keyClick(&widget, Qt::Key_Space);
  EXPECT_THAT(states, ElementsAre(1, 0, 1));
}

TEST(Button, NamesItselfAsTheSender) {
  QPushButton widget;
  widget.setProperty("tag", 1000);
  ui::qt::ButtonAdapter button(widget);
  Actions actions;
  button.setAction(actions.action());
  button.performClick();
  EXPECT_THAT(actions.senders(), ElementsAre(&button));
  EXPECT_EQ(button.tag(), 1000);
  EXPECT_EQ(button.state(), 0) << "a push button is always off";
}

TEST(Button, SendsNothingWhenCodeSetsItsState) {
  QCheckBox widget;
  ui::qt::ButtonAdapter button(widget);
  Actions actions;
  button.setAction(actions.action());
  button.setState(1);
  button.setState(0);
  EXPECT_THAT(actions.senders(), ElementsAre());
}

TEST(Button, DoesNothingWhileItIsDisabled) {
  QPushButton widget;
  widget.setCheckable(true);
  ui::qt::ButtonAdapter button(widget);
  Actions actions;
  button.setAction(actions.action());
  button.setEnabled(false);
  button.performClick();
  EXPECT_THAT(actions.senders(), ElementsAre());
  EXPECT_EQ(button.state(), 0);
}

TEST(Button, KnowsItsOwnStateWhateverTheWidgetsAroundIt) {
  QWidget page;
  auto* widget = new QPushButton(&page);
  ui::qt::ButtonAdapter button(*widget);
  page.setEnabled(false);
  EXPECT_TRUE(button.isEnabled());
  EXPECT_FALSE(button.isHidden()) << "the page was never shown, the button never hidden";
  button.setHidden(true);
  EXPECT_TRUE(button.isHidden());
}

TEST(Button, MayBeDestroyedByItsOwnAction) {
  QPushButton widget;
  auto button = std::make_unique<ui::qt::ButtonAdapter>(widget);
  button->setAction([&](ui::Object*) { button.reset(); });
  widget.click();
  EXPECT_EQ(button, nullptr);
  widget.click();
}

TEST(Button, LogsWhatItsActionThrows) {
  fakes::CallLog calls;
  const fakes::LogCapture log(calls);
  QPushButton widget;
  ui::qt::ButtonAdapter button(widget);
  button.setAction([](ui::Object*) { throw std::runtime_error("the action failed"); });
  EXPECT_NO_THROW(widget.click());
  ASSERT_EQ(log.lines().size(), 1U);
  EXPECT_THAT(log.lines().front(), testing::HasSubstr("the action failed"));
}

class SegmentedControl : public testing::Test {
 protected:
  SegmentedControl() {
    auto* layout = new QHBoxLayout(&widget_);
    for (const char* title : {"Source", "Encoded"}) {
      auto* segment = new QPushButton(title);
      segment->setCheckable(true);
      layout->addWidget(segment);
      segments_.push_back(segment);
    }
    control_ = std::make_unique<ui::qt::SegmentedControlAdapter>(widget_);
    control_->setAction(actions_.action());
    show(widget_);
  }

  QWidget widget_;
  std::vector<QPushButton*> segments_;
  std::unique_ptr<ui::qt::SegmentedControlAdapter> control_;
  Actions actions_;
};

TEST_F(SegmentedControl, SelectsOneSegmentAndThenSendsItsAction) {
  QTest::mouseClick(segments_[1], Qt::LeftButton);
  EXPECT_EQ(control_->selectedSegment(), 1);
  QTest::mouseClick(segments_[0], Qt::LeftButton);
  EXPECT_EQ(control_->selectedSegment(), 0);
  EXPECT_FALSE(segments_[1]->isChecked());
  EXPECT_THAT(actions_.senders(), ElementsAre(control_.get(), control_.get()));
}

TEST_F(SegmentedControl, KeepsASelectedSegmentThatIsClickedAgain) {
  QTest::mouseClick(segments_[1], Qt::LeftButton);
  QTest::mouseClick(segments_[1], Qt::LeftButton);
  EXPECT_EQ(control_->selectedSegment(), 1);
  EXPECT_EQ(actions_.senders().size(), 2U);
}

TEST_F(SegmentedControl, SendsNothingWhenCodeSelects) {
  control_->setSelectedSegment(1);
  EXPECT_EQ(control_->selectedSegment(), 1);
  EXPECT_TRUE(segments_[1]->isChecked());
  EXPECT_THAT(actions_.senders(), ElementsAre());
}

TEST(Slider, SendsItsActionAtEveryStepByTheUserAndNeverForCode) {
  QSlider widget(Qt::Horizontal);
  widget.setMaximum(127);
  ui::qt::SliderAdapter slider(widget);
  std::vector<int> values;
  slider.setAction([&](ui::Object*) { values.push_back(slider.intValue()); });
  show(widget);
  slider.setFloatValue(64.0F);
  EXPECT_THAT(values, ElementsAre());
  QTest::keyClick(&widget, Qt::Key_Right);
  QTest::keyClick(&widget, Qt::Key_Left);
  EXPECT_THAT(values, ElementsAre(65, 64));
}

TEST(Slider, TakesTheWholePartAndStaysInItsRange) {
  QSlider widget;
  widget.setMaximum(127);
  ui::qt::SliderAdapter slider(widget);
  slider.setFloatValue(63.9F);
  EXPECT_EQ(slider.intValue(), 63);
  slider.setFloatValue(1e30F);
  EXPECT_EQ(slider.intValue(), 127);
  slider.setFloatValue(-5.0F);
  EXPECT_EQ(slider.intValue(), 0);
  slider.setFloatValue(std::numeric_limits<float>::quiet_NaN());
  EXPECT_EQ(slider.intValue(), 0);
}

class PopUpButton : public testing::Test {
 protected:
  PopUpButton() {
    box_.addItems({"Plus", "128K"});
    box_.insertSeparator(2);
    box_.addItem("Custom");
    popUp_ = std::make_unique<ui::qt::PopUpButtonAdapter>(box_);
    popUp_->setAction(button_.action());
    popUp_->itemAtIndex(1)->setAction(item_.action());
    popUp_->setTag(1, 2);
    show(box_);
    box_.activateWindow();
    box_.setFocus();
  }
  void TearDown() override { box_.hidePopup(); }

  void pick(int index) { qt_test::pickItem(box_, index); }

  ui::qt::PopUpBox box_;
  std::unique_ptr<ui::qt::PopUpButtonAdapter> popUp_;
  Actions button_;
  Actions item_;
};

TEST_F(PopUpButton, SendsThePickedItemsOwnActionWithTheItemAsSender) {
  pick(1);
  EXPECT_THAT(item_.senders(), ElementsAre(popUp_->itemAtIndex(1)));
  EXPECT_THAT(button_.senders(), ElementsAre());
  EXPECT_EQ(popUp_->indexOfSelectedItem(), 1);
}

TEST_F(PopUpButton, SendsItsOwnActionForAnItemWithoutOne) {
  pick(3);
  EXPECT_THAT(button_.senders(), ElementsAre(popUp_.get()));
  EXPECT_EQ(popUp_->titleOfSelectedItem(), "Custom");
}

TEST_F(PopUpButton, NeverSelectsASeparator) {
  pick(2);
  EXPECT_THAT(button_.senders(), ElementsAre());
  EXPECT_EQ(popUp_->indexOfSelectedItem(), 0);
}

TEST_F(PopUpButton, CountsSeparatorsAndKeepsEqualTitlesSideBySide) {
  popUp_->insertItemWithTitle("128K", 3);
  popUp_->insertItemWithTitle("128K", 3);
  EXPECT_EQ(popUp_->numberOfItems(), 6);
  EXPECT_EQ(popUp_->itemAtIndex(3)->title(), "128K");
  EXPECT_EQ(popUp_->itemAtIndex(4)->title(), "128K");
  EXPECT_EQ(popUp_->itemAtIndex(5)->title(), "Custom");
  EXPECT_EQ(popUp_->itemAtIndex(6), nullptr);
  EXPECT_EQ(popUp_->itemAtIndex(-1), nullptr);
}

TEST_F(PopUpButton, KeepsItsSelectionWhenItemsMove) {
  popUp_->selectItemAtIndex(3);
  popUp_->insertItemWithTitle("New", 0);
  EXPECT_EQ(popUp_->titleOfSelectedItem(), "Custom");
  popUp_->removeItemAtIndex(0);
  EXPECT_EQ(popUp_->indexOfSelectedItem(), 3);
}

TEST_F(PopUpButton, FindsItemsByTagAndByRepresentedObject) {
  const ui::Dictionary key = {{"Format", 1.0F}, {"Strategy", 0.0F}};
  popUp_->itemAtIndex(3)->setRepresentedObject(key);
  EXPECT_EQ(popUp_->indexOfItemWithTag(2), 1);
  EXPECT_EQ(popUp_->indexOfItemWithTag(9), -1);
  EXPECT_EQ(popUp_->indexOfItemWithRepresentedObject(key), 3);
  EXPECT_EQ(popUp_->indexOfItemWithRepresentedObject({{"Format", 2.0F}}), -1);
  EXPECT_EQ(popUp_->itemAtIndex(0)->representedObject(), nullptr);
}

TEST_F(PopUpButton, SendsNothingWhenCodeSelectsOrChangesItsItems) {
  popUp_->selectItemAtIndex(1);
  popUp_->insertItemWithTitle("New", 0);
  popUp_->removeItemAtIndex(2);
  popUp_->selectItemAtIndex(100);
  EXPECT_EQ(popUp_->indexOfSelectedItem(), -1);
  EXPECT_THAT(item_.senders(), ElementsAre());
  EXPECT_THAT(button_.senders(), ElementsAre());
}

TEST_F(PopUpButton, OpensByKeyAndPicksNothingByLettersOrTheWheel) {
  QTest::keyClick(&box_, Qt::Key_1);
  QTest::keyClick(&box_, Qt::Key_C);
  QWheelEvent wheel(QPointF(5, 5), box_.mapToGlobal(QPointF(5, 5)), {}, QPoint(0, -120),
                    Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase, false);
  QApplication::sendEvent(&box_, &wheel);
  EXPECT_EQ(popUp_->indexOfSelectedItem(), 0);
  EXPECT_FALSE(box_.view()->isVisible());
  QTest::keyClick(&box_, Qt::Key_Down);
  EXPECT_TRUE(box_.view()->isVisible());
  EXPECT_THAT(button_.senders(), ElementsAre());
}

class TextField : public testing::Test {
 protected:
  TextField() : english_(ui::makeLocalization("en_US")), german_(ui::makeLocalization("de_DE")) {}

  std::unique_ptr<ui::Localization> english_;
  std::unique_ptr<ui::Localization> german_;
  QLabel label_;
};

TEST_F(TextField, ShowsLevelsWithOneDecimalThroughItsFormat) {
  ui::qt::TextFieldAdapter field(label_, *english_, "%@ dB");
  field.setFloatValue(-60.0F);
  EXPECT_EQ(label_.text().toStdString(), "\u221260.0 dB");
  field.setFloatValue(1.249F);
  EXPECT_EQ(label_.text().toStdString(), "1.2 dB");
  field.setIntegerValue(1234567);
  EXPECT_EQ(label_.text().toStdString(), "1234567");
}

TEST_F(TextField, FollowsTheUsersLocale) {
  ui::qt::TextFieldAdapter field(label_, *german_, "%@ dB");
  field.setFloatValue(0.4F);
  EXPECT_EQ(label_.text().toStdString(), "0,4 dB");
}

TEST_F(TextField, ShowsMarkupAsPlainText) {
  ui::qt::TextFieldAdapter field(label_, *english_, "%@");
  field.setStringValue("<b>bold</b>");
  EXPECT_EQ(label_.textFormat(), Qt::PlainText);
  EXPECT_EQ(label_.text().toStdString(), "<b>bold</b>");
}

TEST_F(TextField, MakesColouredTextBold) {
  ui::qt::TextFieldAdapter field(label_, *english_, "%@");
  field.setTextColor(ui::Color::deviceRGB(0.5, 0, 0, 1));
  EXPECT_TRUE(label_.font().bold());
  field.setTextColor(ui::Color::black());
  EXPECT_FALSE(label_.font().bold());
}

TEST_F(TextField, FollowsAChangeOfThePaletteWhileItIsShown) {
  QWidget page;
  auto* label = new QLabel(&page);
  ui::qt::TextFieldAdapter field(*label, *english_, "%@");
  const auto color = [&] { return label->palette().color(QPalette::WindowText); };
  const auto background = [&] { return label->palette().color(QPalette::Window); };
  const auto setPalette = [&](QColor window, QColor text) {
    QPalette palette(window, window);
    palette.setColor(QPalette::WindowText, text);
    page.setPalette(palette);
  };
  setPalette(0xF3F4F6, 0x1B1E24);
  field.setTextColor(ui::Color::deviceRGB(0.5, 0, 0, 1));
  EXPECT_EQ(color().rgb(), QColor::fromRgbF(0.5F, 0, 0).rgb());
  setPalette(0x22252A, 0xECEEF1);
  EXPECT_GE(ui::qt::contrast(color(), background()), ui::qt::kTextContrast);
  EXPECT_NEAR(color().hslHueF(), 0.0, 0.01);
  field.setTextColor(ui::Color::black());
  EXPECT_EQ(color(), QColor(0xECEEF1)) << "black is the palette's own text colour";
  setPalette(0xF3F4F6, 0x1B1E24);
  EXPECT_EQ(color(), QColor(0x1B1E24));
}

TEST_F(TextField, IsReadOutWithItsName) {
  label_.setAccessibleName("Source, Sample, Left peak");
  ui::qt::TextFieldAdapter field(label_, *english_, "%@ dB");
  field.setFloatValue(-0.1F);
  QAccessibleInterface* accessible = QAccessible::queryAccessibleInterface(&label_);
  ASSERT_NE(accessible, nullptr);
  EXPECT_EQ(accessible->text(QAccessible::Name).toStdString(),
            "Source, Sample, Left peak: \u22120.1 dB");
}

TEST(Lamp, DiffersInShapeAndColour) {
  ui::qt::Lamp lamp;
  lamp.resize(12, 12);
  ui::qt::LampAdapter indicator(lamp);
  const QImage dark = lamp.grab().toImage();
  indicator.setIntValue(2);
  const QImage lit = lamp.grab().toImage();
  const QColor background = lamp.palette().color(QPalette::Window);
  // The corner is empty in the round lamp and filled in the square one.
  EXPECT_EQ(dark.pixelColor(1, 1), background);
  EXPECT_NE(lit.pixelColor(1, 1), background);
  EXPECT_GT(lit.pixelColor(6, 6).red(), 2 * lit.pixelColor(6, 6).green());
  EXPECT_EQ(dark.pixelColor(6, 6).red(), dark.pixelColor(6, 6).green());
}

TEST(Lamp, TellsAssistiveToolsWhetherItIsLit) {
  ui::qt::Lamp lamp;
  lamp.setAccessibleName("Source clip");
  QAccessibleInterface* accessible = QAccessible::queryAccessibleInterface(&lamp);
  ASSERT_NE(accessible, nullptr);
  EXPECT_EQ(accessible->role(), QAccessible::Indicator);
  EXPECT_EQ(accessible->text(QAccessible::Name), "Source clip");
  EXPECT_FALSE(accessible->state().checked);
  lamp.setValue(2);
  EXPECT_TRUE(accessible->state().checked);
  EXPECT_EQ(accessible->text(QAccessible::Value), "2");
}

TEST(TabularFont, HasDigitsOfEqualWidthBoldOrNot) {
  QFont font = ui::qt::tabularFont(ui::qt::viewFont());
  for (const bool bold : {false, true}) {
    font.setBold(bold);
    const QFontMetricsF metrics(font);
    for (const char digit : {'1', '4', '7', '8'}) {
      EXPECT_EQ(metrics.horizontalAdvance(QLatin1Char(digit)),
                metrics.horizontalAdvance(QLatin1Char('0')));
    }
  }
}

}  // namespace
