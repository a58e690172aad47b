#include <gmock/gmock.h>

#include <QApplication>
#include <QFileDialog>
#include <QMessageBox>
#include <QTest>
#include <QTimer>
#include <QWidget>
#include <functional>
#include <optional>
#include <string>

#include "skins/qt/PanelAnswers.h"
#include "skins/qt/SavePanel.h"
#include "ui/TemporaryFolder.h"

namespace {

class SavePanel : public testing::Test {
 protected:
  /// Runs the panel, does `work` in it as the user and returns the panel's result.
  std::optional<std::filesystem::path> run(const std::function<void()>& work) {
    QTimer::singleShot(0, &parent_, work);
    return ui::qt::runSavePanel({"Save Test Results", "Results-1", "txt"}, parent_);
  }
  std::optional<std::filesystem::path> saveAs(const std::string& name) {
    return run([&] { qt_test::answerSavePanel(folder_ / name); });
  }

  TemporaryFolder folder_;
  QWidget parent_;
};

TEST_F(SavePanel, ShowsItsTitleAndProposesAName) {
  QString title;
  std::optional<std::string> proposed;
  const auto place = run([&] {
    title = QApplication::activeModalWidget()->windowTitle();
    proposed = qt_test::answerSavePanel(folder_ / "results");
  });
  EXPECT_EQ(title, "Save Test Results");
  EXPECT_EQ(proposed, "Results-1");
  EXPECT_EQ(place, folder_ / "results.txt");
}

TEST_F(SavePanel, GivesEveryNameItsExtension) {
  EXPECT_EQ(saveAs("results.txt"), folder_ / "results.txt");
  EXPECT_EQ(saveAs("RESULTS.TXT"), folder_ / "RESULTS.TXT");
  EXPECT_EQ(saveAs("mix v1.2"), folder_ / "mix v1.2.txt");
  EXPECT_EQ(saveAs("results.pdf"), folder_ / "results.pdf.txt");
}

TEST_F(SavePanel, GivesNothingWhenItIsCancelled) {
  EXPECT_EQ(run([] { qt_test::answerSavePanel(std::nullopt); }), std::nullopt);
}

TEST_F(SavePanel, AsksBeforeItReplacesAFileWhoseExtensionItAdded) {
  writeBytes(folder_ / "mix v1.2.txt", "old");
  bool asked = false;
  const auto place = run([&] {
    auto* const panel = QApplication::activeModalWidget();
    QTimer::singleShot(0, panel, [&] {
      if (auto* const question = qobject_cast<QMessageBox*>(QApplication::activeModalWidget())) {
        asked = true;
        QTest::keyClick(question, Qt::Key_Escape);
      }
    });
    qt_test::answerSavePanel(folder_ / "mix v1.2");
    EXPECT_TRUE(panel->isVisible());
    QTest::keyClick(panel, Qt::Key_Escape);
  });
  EXPECT_TRUE(asked);
  EXPECT_EQ(place, std::nullopt);
}

}  // namespace
