#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <QAbstractButton>
#include <QApplication>
#include <QComboBox>
#include <QFileDialog>
#include <QLineEdit>
#include <QMessageBox>
#include <QPushButton>
#include <QTabWidget>
#include <QTest>
#include <QTimer>

#include "skins/qt/Host.h"
#include "skins/qt/Mouse.h"
#include "view/fakes/FakeConverter.h"

namespace {

using namespace std::chrono_literals;

class Sheets : public testing::Test {
 protected:
  Sheets() { host_.advance(120ms); }

  void click(std::string_view outlet) { QTest::mouseClick(&host_.outlet(outlet), Qt::LeftButton); }
  void showTestPage() { host_.outlet<QTabWidget>("view.tabView").setCurrentIndex(1); }
  void startTest() {
    showTestPage();
    click("listeningTestController.aIsSourceButton");
    host_.advance(120ms);
  }
  /// Asks for the other tab, which opens the alert while a test runs.
  QMessageBox* openAlert() {
    host_.outlet<QTabWidget>("view.tabView").setCurrentIndex(0);
    QApplication::processEvents();
    return host_.alert();
  }
  int tab() const { return host_.outlet<QTabWidget>("view.tabView").currentIndex(); }

  fakes::CallLog calls_;
  fakes::FakeConverter unit_{calls_};
  qt_test::Host host_{unit_};
};

TEST_F(Sheets, OpenOverTheViewsWindowAndBlockIt) {
  click("view.settingsButton");
  QWidget& sheet = host_.outlet("keyController.keySettingsSheet");
  EXPECT_TRUE(sheet.isVisible());
  EXPECT_TRUE(sheet.isWindow());
  EXPECT_EQ(sheet.windowModality(), Qt::WindowModal);
  EXPECT_EQ(sheet.parentWidget()->window(), &host_.window());
  EXPECT_EQ(QApplication::activeModalWidget(), &sheet);
}

TEST_F(Sheets, LeaveTheMetersRunning) {
  click("view.settingsButton");
  const auto reads = [this] { return calls_.count("unit.getProperty 5302"); };
  const std::size_t before = reads();
  host_.advance(300ms);
  EXPECT_GT(reads(), before);
}

TEST_F(Sheets, TreatEscapeAsCancel) {
  click("view.settingsButton");
  QWidget& sheet = host_.outlet("keyController.keySettingsSheet");
  QTest::keyClick(&sheet, Qt::Key_Escape);
  EXPECT_FALSE(sheet.isVisible());
}

TEST_F(Sheets, TreatClosingAsCancel) {
  click("view.settingsButton");
  QWidget& sheet = host_.outlet("keyController.keySettingsSheet");
  sheet.close();
  EXPECT_FALSE(sheet.isVisible());
}

TEST_F(Sheets, TreatReturnAsTheDefaultButton) {
  auto& menu = host_.outlet<QComboBox>("view.encoderPopup");
  Q_EMIT menu.activated(menu.count() - 1);
  QWidget& sheet = host_.outlet("settingsController.settingsSheet");
  ASSERT_TRUE(sheet.isVisible());
  qt_test::pickItem(host_.outlet<QComboBox>("settingsController.bitratePopup"), 4);
  calls_.clear();
  QTest::keyClick(&sheet, Qt::Key_Return);
  EXPECT_FALSE(sheet.isVisible());
  EXPECT_EQ(calls_.count("unit.setParameter"), 3U);
  EXPECT_EQ(unit_.parameters[2], 4.0F) << "Cancel would have restored the old rate";
}

TEST_F(Sheets, GiveTheFocusBackToTheView) {
  click("view.settingsButton");
  click("keyController.doneButton");
  QApplication::processEvents();
  EXPECT_TRUE(host_.view()->hasFocus());
}

TEST_F(Sheets, KeepTheResultsOpenOnEscapeAndOnClosing) {
  showTestPage();
  click("listeningTestController.endTestButton");
  QWidget& sheet = host_.outlet("listeningTestController.resultsSheet");
  ASSERT_TRUE(sheet.isVisible());
  QTest::keyClick(&sheet, Qt::Key_Escape);
  EXPECT_TRUE(sheet.isVisible());
  sheet.close();
  EXPECT_TRUE(sheet.isVisible());
  QTest::mouseClick(&host_.named("resultsOKButton"), Qt::LeftButton);
  EXPECT_FALSE(sheet.isVisible());
}

TEST_F(Sheets, AskWithoutStoppingTheEventLoop) {
  startTest();
  QMessageBox* box = openAlert();
  ASSERT_NE(box, nullptr) << "the call that opened it has returned";
  EXPECT_EQ(box->windowModality(), Qt::WindowModal);
  EXPECT_EQ(box->defaultButton()->text(), "Resume");
  EXPECT_EQ(tab(), 1);
}

TEST_F(Sheets, TreatEscapeInTheAlertAsResume) {
  startTest();
  QMessageBox* box = openAlert();
  ASSERT_NE(box, nullptr);
  QTest::keyClick(box, Qt::Key_Escape);
  EXPECT_EQ(host_.alert(), nullptr);
  EXPECT_EQ(tab(), 1);
  EXPECT_EQ(unit_.listeningTestActive, 1U);
}

TEST_F(Sheets, TreatClosingTheAlertAsResume) {
  startTest();
  QMessageBox* box = openAlert();
  ASSERT_NE(box, nullptr);
  box->close();
  EXPECT_EQ(host_.alert(), nullptr);
  EXPECT_EQ(tab(), 1);
  EXPECT_EQ(unit_.listeningTestActive, 1U);
}

TEST_F(Sheets, StopTheTestOnlyByTheStopButton) {
  startTest();
  QMessageBox* box = openAlert();
  ASSERT_NE(box, nullptr);
  for (QAbstractButton* button : box->buttons()) {
    if (button->text() == "Stop") {
      QTest::mouseClick(button, Qt::LeftButton);
      break;
    }
  }
  EXPECT_EQ(tab(), 0);
  EXPECT_EQ(unit_.listeningTestActive, 0U);
  QApplication::processEvents();
  EXPECT_TRUE(host_.view()->hasFocus());
}

TEST_F(Sheets, AreCancelledWhenTheViewLeavesItsParent) {
  startTest();
  ASSERT_NE(openAlert(), nullptr);
  host_.view()->setParent(nullptr);
  EXPECT_EQ(host_.alert(), nullptr);
  EXPECT_EQ(unit_.listeningTestActive, 1U) << "nobody answered";
  delete host_.view();
}

TEST_F(Sheets, AreDestroyedWithTheirView) {
  click("view.settingsButton");
  const QPointer<QWidget> sheet = &host_.outlet("keyController.keySettingsSheet");
  delete host_.view();
  EXPECT_EQ(sheet, nullptr);
}

TEST_F(Sheets, MayBeOpenWhenTheirViewIsDestroyed) {
  startTest();
  ASSERT_NE(openAlert(), nullptr);
  delete host_.view();
  QApplication::processEvents();
  EXPECT_EQ(QApplication::activeModalWidget(), nullptr);
}

TEST_F(Sheets, SurviveADestroyedViewWhileItsSavePanelRuns) {
  showTestPage();
  click("listeningTestController.endTestButton");
  host_.outlet<QAbstractButton>("listeningTestController.saveResultsButton").setChecked(true);
  bool ran = false;
  QTimer::singleShot(0, [&] {
    ran = qobject_cast<QFileDialog*>(QApplication::activeModalWidget()) != nullptr;
    delete host_.view();
  });
  QTest::mouseClick(&host_.named("resultsOKButton"), Qt::LeftButton);
  EXPECT_TRUE(ran);
  EXPECT_EQ(host_.view(), nullptr);
}

TEST_F(Sheets, AddTheExtensionToANameWithoutOne) {
  const qt_test::ResourceFolder folder;
  showTestPage();
  click("listeningTestController.endTestButton");
  host_.outlet<QAbstractButton>("listeningTestController.saveResultsButton").setChecked(true);
  QTimer::singleShot(0, [&] {
    auto* panel = qobject_cast<QFileDialog*>(QApplication::activeModalWidget());
    ASSERT_NE(panel, nullptr);
    auto* name = panel->findChild<QLineEdit*>();
    name->setText(QString::fromStdString((folder.path() / "results").string()));
    QTest::keyClick(name, Qt::Key_Return);
  });
  QTest::mouseClick(&host_.named("resultsOKButton"), Qt::LeftButton);
  EXPECT_TRUE(std::filesystem::exists(folder.path() / "results.txt"));
}

}  // namespace
