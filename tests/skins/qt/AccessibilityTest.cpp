#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <QAbstractButton>
#include <QAccessible>
#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QDialog>
#include <QLabel>
#include <QPushButton>
#include <QSlider>
#include <QStackedWidget>
#include <QTabBar>
#include <QTabWidget>
#include <memory>
#include <set>

#include "skins/qt/Host.h"
#include "skins/qt/Lamp.h"
#include "skins/qt/Mouse.h"
#include "skins/qt/Tour.h"
#include "view/fakes/FakeConverter.h"

/// What the view tells assistive tools, and what they can do with it.
namespace {

using namespace std::chrono_literals;

QAccessibleInterface& accessible(QWidget& widget) {
  QAccessibleInterface* found = QAccessible::queryAccessibleInterface(&widget);
  if (found == nullptr) {
    throw std::logic_error("no interface for " + widget.objectName().toStdString());
  }
  return *found;
}

/// The role that a widget must have for a screen reader; `NoRole` for a mere container.
QAccessible::Role roleFor(const QWidget& widget) {
  if (qobject_cast<const QComboBox*>(&widget) != nullptr) {
    return QAccessible::ComboBox;
  }
  if (const auto* button = qobject_cast<const QAbstractButton*>(&widget)) {
    if (button->property("look").toString().endsWith("Segment")) {
      return QAccessible::RadioButton;
    }
    return button->isCheckable() ? QAccessible::CheckBox : QAccessible::Button;
  }
  if (qobject_cast<const QSlider*>(&widget) != nullptr) {
    return QAccessible::Slider;
  }
  if (qobject_cast<const QLabel*>(&widget) != nullptr) {
    return QAccessible::StaticText;
  }
  if (qobject_cast<const QTabBar*>(&widget) != nullptr) {
    return QAccessible::PageTabList;
  }
  return dynamic_cast<const ui::qt::Lamp*>(&widget) != nullptr ? QAccessible::Indicator
                                                               : QAccessible::NoRole;
}

/// Every control and field of the page or sheet that is on the screen.
std::vector<QWidget*> shownParts(const QWidget& page) {
  std::vector<QWidget*> parts;
  for (QWidget* widget : page.findChildren<QWidget*>()) {
    // A tab bar's own scroll buttons are never shown.
    if (widget->isVisible() && widget->window() == page.window() &&
        roleFor(*widget) != QAccessible::NoRole) {
      parts.push_back(widget);
    }
  }
  return parts;
}

class Accessibility : public testing::TestWithParam<const char*> {
 protected:
  Accessibility() : unit_(calls_) { options_.language = options_.locale = GetParam(); }

  fakes::CallLog calls_;
  fakes::FakeConverter unit_;
  qt_test::HostOptions options_;
};

TEST_P(Accessibility, NamesEveryControlAndField) {
  qt_test::Tour(unit_, options_).take([](const QWidget& page) {
    for (QWidget* part : shownParts(page)) {
      if (qobject_cast<QTabBar*>(part) == nullptr) {
        EXPECT_FALSE(accessible(*part).text(QAccessible::Name).isEmpty())
            << part->objectName().toStdString();
      }
    }
  });
}

TEST_P(Accessibility, GivesEachTheRightRole) {
  std::set<QAccessible::Role> met;
  qt_test::Tour(unit_, options_).take([&met](const QWidget& page) {
    for (QWidget* part : shownParts(page)) {
      EXPECT_EQ(accessible(*part).role(), roleFor(*part)) << part->objectName().toStdString();
      met.insert(roleFor(*part));
    }
  });
  EXPECT_EQ(met.size(), 8U) << "every role occurs";
}

TEST_P(Accessibility, TellsControlsOfOneKindApartByName) {
  qt_test::Tour(unit_, options_).take([](const QWidget& page) {
    std::set<QString> names;
    for (QWidget* part : shownParts(page)) {
      const bool isOperated = part->focusPolicy() != Qt::NoFocus && part->isEnabled();
      if (isOperated && qobject_cast<QTabBar*>(part) == nullptr) {
        const QString name = accessible(*part).text(QAccessible::Name);
        EXPECT_TRUE(names.insert(name).second) << name.toStdString() << " occurs twice";
      }
    }
  });
}

TEST_P(Accessibility, ReportsWhatIsFocusableAndWhatIsDisabled) {
  bool anyDisabled = false;
  qt_test::Tour(unit_, options_).take([&anyDisabled](const QWidget& page) {
    for (QWidget* part : shownParts(page)) {
      const QAccessible::State state = accessible(*part).state();
      const std::string name = part->objectName().toStdString();
      EXPECT_EQ(state.focusable, part->focusPolicy() != Qt::NoFocus) << name;
      EXPECT_EQ(state.disabled, !part->isEnabled()) << name;
      anyDisabled = anyDisabled || state.disabled;
    }
  });
  EXPECT_TRUE(anyDisabled) << "the encoder menu while a test runs";
}

TEST_P(Accessibility, TitlesEverySheet) {
  qt_test::Tour(unit_, options_).take([](QWidget& page) {
    if (auto* sheet = qobject_cast<QDialog*>(&page)) {
      EXPECT_EQ(accessible(*sheet).role(), QAccessible::Dialog);
      EXPECT_FALSE(accessible(*sheet).text(QAccessible::Name).isEmpty())
          << sheet->objectName().toStdString();
    }
  });
}

TEST_P(Accessibility, HasNoMnemonicThatCouldTakeABoundKey) {
  qt_test::Tour(unit_, options_).take([](const QWidget& page) {
    for (const auto* button : page.findChildren<QAbstractButton*>()) {
      EXPECT_TRUE(button->shortcut().isEmpty()) << button->objectName().toStdString();
      EXPECT_FALSE(button->text().contains('&')) << button->objectName().toStdString();
    }
    for (const auto* label : page.findChildren<QLabel*>()) {
      EXPECT_FALSE(label->text().contains('&')) << label->objectName().toStdString();
    }
    for (const auto* tabs : page.findChildren<QTabBar*>()) {
      for (int index = 0; index < tabs->count(); ++index) {
        EXPECT_FALSE(tabs->tabText(index).contains('&'));
      }
    }
  });
}

INSTANTIATE_TEST_SUITE_P(Languages, Accessibility, testing::Values("en", "de", "fr"),
                         [](const auto& info) { return std::string(info.param); });

class AssistiveTool : public testing::Test {
 protected:
  AssistiveTool() {
    host_.advance(120ms);
    calls_.clear();
  }
  static void act(QWidget& widget, const QString& action) {
    QAccessibleActionInterface* actions = accessible(widget).actionInterface();
    ASSERT_NE(actions, nullptr);
    ASSERT_TRUE(actions->actionNames().contains(action)) << action.toStdString();
    actions->doAction(action);
    QApplication::processEvents();
  }
  static bool isChecked(QWidget& widget) { return accessible(widget).state().checked; }

  fakes::CallLog calls_;
  fakes::FakeConverter unit_{calls_};
  qt_test::Host host_{unit_};
};

TEST_F(AssistiveTool, PressesButtons) {
  act(host_.outlet("auditionController.resetButton"), QAccessibleActionInterface::pressAction());
  EXPECT_EQ(calls_.count("unit.setProperty 5303 = 1"), 1U);
  act(host_.outlet("auditionController.showDetailsButton"),
      QAccessibleActionInterface::toggleAction());
  EXPECT_EQ(host_.view()->height(), 369);
}

TEST_F(AssistiveTool, ChoosesTheMonitoredSignalAndReadsWhichItIs) {
  QWidget& source = host_.named("monitorSourceSegment");
  QWidget& encoded = host_.named("monitorEncodedSegment");
  EXPECT_FALSE(isChecked(source));
  EXPECT_TRUE(isChecked(encoded));
  act(source, QAccessibleActionInterface::toggleAction());
  EXPECT_EQ(unit_.monitorSource, 1U);
  EXPECT_TRUE(isChecked(source));
  EXPECT_FALSE(isChecked(encoded));
}

TEST_F(AssistiveTool, TogglesACheckBoxWithItsAction) {
  host_.outlet<QTabWidget>("view.tabView").setCurrentIndex(1);
  QApplication::processEvents();
  QWidget& learning = host_.outlet("listeningTestController.learnModeButton");
  act(learning, QAccessibleActionInterface::toggleAction());
  EXPECT_TRUE(isChecked(learning));
  EXPECT_EQ(host_.outlet<QLabel>("listeningTestController.cycleLabel").text(), "Learning Mode");
}

TEST_F(AssistiveTool, MovesTheQualitySlider) {
  unit_.hostSetsSetting({0, 2, 64});
  auto& menu = host_.outlet<QComboBox>("view.encoderPopup");
  qt_test::pickItem(menu, menu.count() - 1);
  host_.advance(120ms);
  calls_.clear();
  QAccessibleValueInterface* value =
      accessible(host_.outlet("settingsController.qualitySlider")).valueInterface();
  ASSERT_NE(value, nullptr);
  value->setCurrentValue(100);
  EXPECT_THAT(calls_.starting("unit.set"), testing::ElementsAre("unit.setParameter 2 = 100"));
}

TEST_F(AssistiveTool, PressesNothingThatIsDisabled) {
  QWidget& reset = host_.outlet("auditionController.resetButton");
  reset.setEnabled(false);
  EXPECT_FALSE(accessible(reset).actionInterface()->actionNames().contains(
      QAccessibleActionInterface::pressAction()));
  accessible(reset).actionInterface()->doAction(QAccessibleActionInterface::pressAction());
  QApplication::processEvents();
  EXPECT_EQ(calls_.count("unit.set"), 0U);
}

TEST_F(AssistiveTool, ReadsTheEncoderAndTheReadings) {
  EXPECT_EQ(accessible(host_.outlet("view.encoderPopup")).text(QAccessible::Value),
            host_.outlet<QComboBox>("view.encoderPopup").currentText());
  qt_test::clickOn(host_.outlet("auditionController.showDetailsButton"));
  unit_.statistics[velk::kPeakStatsSlot_EncodedRight] = {0.7F, 1.1F, 18, 44};
  host_.advance(120ms);
  EXPECT_EQ(accessible(host_.outlet("auditionController.eirField")).text(QAccessible::Name),
            "Encoded, Inter-sample, Right peak: 1.1 dB");
  EXPECT_EQ(accessible(host_.outlet("auditionController.eircField")).text(QAccessible::Name),
            "Encoded, Inter-sample, Right, clips: 44");
  EXPECT_TRUE(isChecked(host_.outlet("auditionController.eirIndicator")));
  EXPECT_TRUE(isChecked(host_.outlet("auditionController.encoderClipIndicator")));
  EXPECT_FALSE(isChecked(host_.outlet("auditionController.sourceClipIndicator")));
}

TEST_F(AssistiveTool, ChangesPagesExceptDuringATest) {
  QAccessibleInterface& tabs = accessible(*host_.outlet<QTabWidget>("view.tabView").tabBar());
  std::vector<QAccessibleInterface*> pages;
  for (int child = 0; child < tabs.childCount(); ++child) {
    if (tabs.child(child)->role() == QAccessible::PageTab) {
      pages.push_back(tabs.child(child));
    }
  }
  ASSERT_EQ(pages.size(), 2U);
  EXPECT_EQ(pages[0]->text(QAccessible::Name), "Audition");
  EXPECT_EQ(pages[1]->text(QAccessible::Name), "Listening Test");
  pages[1]->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
  EXPECT_EQ(host_.view()->height(), 255);
  qt_test::clickOn(host_.outlet("listeningTestController.aIsSourceButton"));
  host_.advance(120ms);
  pages[0]->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
  EXPECT_EQ(host_.view()->height(), 255) << "the running test keeps its page";
}

}  // namespace
