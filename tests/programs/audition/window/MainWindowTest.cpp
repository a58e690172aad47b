#include <gtest/gtest.h>

#include <QAction>
#include <QCoreApplication>
#include <QDragEnterEvent>
#include <QDropEvent>
#include <QIcon>
#include <QMenu>
#include <QMenuBar>
#include <QMessageBox>
#include <QMimeData>
#include <QSignalSpy>
#include <QTest>
#include <QUrl>
#include <memory>

#include "PlainView.h"
#include "host/messages/Failure.h"
#include "host/messages/Version.h"
#include "programs/audition/window/MainWindow.h"

using host::audition::MainWindow;

namespace {

class Window : public testing::Test {
 protected:
  Window() { window_.show(); }

  PlainView& showView() {
    auto view = std::make_unique<PlainView>();
    auto& shown = *view;
    window_.setView(std::move(view));
    settle();
    return shown;
  }
  static void settle() { QCoreApplication::processEvents(); }
  /// Drops the files on the window; returns whether it accepts them.
  bool drop(const QList<QUrl>& urls) {
    QMimeData data;
    data.setUrls(urls);
    QDragEnterEvent enter(QPoint(100, 100), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    enter.ignore();
    QCoreApplication::sendEvent(&window_, &enter);
    if (!enter.isAccepted()) return false;
    QDropEvent event(QPointF(100, 100), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QCoreApplication::sendEvent(&window_, &event);
    return event.isAccepted();
  }

  MainWindow window_;
};

TEST_F(Window, IsAsWideAsTheView) {
  EXPECT_EQ(window_.width(), 560);
  auto& view = showView();
  EXPECT_EQ(window_.width(), 560);
  EXPECT_EQ(view.mapTo(&window_, QPoint()).x(), 0);
}

TEST_F(Window, FollowsTheHeightOfTheView) {
  auto& view = showView();
  const int rest = window_.height() - 195;
  EXPECT_GT(rest, 0);
  for (const double height : {369.0, 195.0, 255.0, 369.0}) {
    view.applyFrameSize({560, height});
    EXPECT_EQ(window_.height(), rest + static_cast<int>(height));
    EXPECT_EQ(view.size(), QSize(560, static_cast<int>(height)));
  }
}

TEST_F(Window, InvitesToOpenAFileWhileThereIsNoView) {
  const auto* const label = window_.findChild<QLabel*>();
  ASSERT_NE(label, nullptr);
  const auto isInviting = [&] {
    for (const auto* const each : window_.findChildren<QLabel*>()) {
      if (each->isVisible() && each->text().contains("drop one here")) return true;
    }
    return false;
  };
  EXPECT_TRUE(isInviting());
  showView();
  EXPECT_FALSE(isInviting());
  window_.setView(nullptr);
  EXPECT_TRUE(isInviting());
}

TEST_F(Window, DestroysAViewWhenAnotherComes) {
  bool destroyed = false;
  window_.setView(std::make_unique<PlainView>([&] { destroyed = true; }));
  EXPECT_FALSE(destroyed);
  showView();
  EXPECT_TRUE(destroyed);
}

TEST_F(Window, TakesTheViewOutBeforeItIsDestroyed) {
  const QObject* parent = &window_;
  auto view = std::make_unique<PlainView>();
  auto* const watched = view.get();
  QObject::connect(watched, &QObject::destroyed,
                   [&](QObject* object) { parent = object->parent(); });
  window_.setView(std::move(view));
  window_.setView(nullptr);
  EXPECT_EQ(parent, nullptr);
}

TEST_F(Window, RefusesAViewOfAnotherToolkitAndKeepsItsOwn) {
  class Foreign : public ui::NativeView {
    void setFrameSize(ui::Size) override {}
    void setFrameSizeObserver(std::function<void(ui::Size)>) override {}
    ui::Size frameSize() const override { return {}; }
    void applyFrameSize(ui::Size) override {}
    bool hasWindow() const override { return false; }
    void makeFirstResponder() override {}
    void interpretKeyEvents(const ui::KeyEvent&) override {}
  };
  auto& view = showView();
  EXPECT_THROW(window_.setView(std::make_unique<Foreign>()), host::Failure);
  EXPECT_TRUE(view.isVisible());
}

TEST_F(Window, GivesTheViewTheKeyboard) {
  auto& view = showView();
  window_.activateWindow();
  EXPECT_EQ(window_.focusWidget(), &view);
  for (auto* const button : window_.findChildren<QAbstractButton*>()) {
    if (!button->isVisible()) continue;
    const auto* const menuButton = qobject_cast<QPushButton*>(button);
    if (menuButton == nullptr || menuButton->menu() == nullptr) {
      QTest::mouseClick(button, Qt::LeftButton);
    }
    EXPECT_FALSE(button->focusPolicy() & Qt::ClickFocus) << button->text().toStdString();
    EXPECT_EQ(window_.focusWidget(), &view) << button->text().toStdString();
  }
}

TEST_F(Window, TakesAFileThatIsDropped) {
  QSignalSpy dropped(&window_, &MainWindow::fileDropped);
  EXPECT_TRUE(drop({QUrl::fromLocalFile("/music/a mix.wav")}));
  ASSERT_EQ(dropped.count(), 1);
  EXPECT_EQ(dropped[0][0].toString(), "/music/a mix.wav");
}

TEST_F(Window, TakesNothingElseThatIsDropped) {
  QSignalSpy dropped(&window_, &MainWindow::fileDropped);
  EXPECT_FALSE(drop({}));
  EXPECT_FALSE(drop({QUrl("https://example.org/mix.wav")}));
  EXPECT_FALSE(drop({QUrl::fromLocalFile("/a.wav"), QUrl::fromLocalFile("/b.wav")}));
  EXPECT_EQ(dropped.count(), 0);
}

TEST_F(Window, OpensNothingWhileOpeningIsDisabled) {
  QSignalSpy opening(&window_, &MainWindow::openRequested);
  const auto open = [&] {
    for (auto* const button : window_.findChildren<QPushButton*>()) {
      if (button->text().startsWith("Open")) QTest::mouseClick(button, Qt::LeftButton);
    }
    for (auto* const action : window_.findChildren<QAction*>()) {
      if (action->text().contains("Open")) action->trigger();
    }
  };
  window_.setOpenEnabled(false);
  open();
  EXPECT_EQ(opening.count(), 0);
  EXPECT_FALSE(window_.acceptDrops());
  window_.setOpenEnabled(true);
  open();
  EXPECT_EQ(opening.count(), 2);
  EXPECT_TRUE(window_.acceptDrops());
}

TEST_F(Window, LeavesEveryBareKeyToTheView) {
  int shortcuts = 0;
  for (const auto* const action : window_.findChildren<QAction*>()) {
    for (const auto& shortcut : action->shortcuts()) {
      ASSERT_EQ(shortcut.count(), 1);
      const auto key = shortcut[0].key();
      const bool isMedia = key == Qt::Key_MediaPlay || key == Qt::Key_MediaTogglePlayPause;
      EXPECT_TRUE(isMedia || shortcut[0].keyboardModifiers() == Qt::ControlModifier)
          << shortcut.toString().toStdString();
      ++shortcuts;
    }
  }
  EXPECT_GE(shortcuts, 6);
}

TEST_F(Window, AsksToPlayAndToMoveOnlyWhileThereIsSomethingToPlay) {
  showView();
  window_.activateWindow();
  QSignalSpy play(&window_, &MainWindow::playRequested);
  QSignalSpy move(&window_, &MainWindow::moveRequested);
  QSignalSpy rewind(&window_, &MainWindow::rewindRequested);
  const auto press = [&] {
    QTest::keyClick(&window_, Qt::Key_P, Qt::ControlModifier);
    QTest::keyClick(&window_, Qt::Key_MediaPlay);
    QTest::keyClick(&window_, Qt::Key_Left, Qt::ControlModifier);
    QTest::keyClick(&window_, Qt::Key_Right, Qt::ControlModifier);
    QTest::keyClick(&window_, Qt::Key_Home, Qt::ControlModifier);
  };
  press();
  EXPECT_EQ(play.count() + move.count() + rewind.count(), 0);
  window_.setTransportEnabled(true);
  press();
  EXPECT_EQ(play.count(), 2);
  ASSERT_EQ(move.count(), 2);
  EXPECT_EQ(move[0][0].toInt(), -5000);
  EXPECT_EQ(move[1][0].toInt(), 5000);
  EXPECT_EQ(rewind.count(), 1);
}

TEST_F(Window, TellsWhatItIsAndGivesTheKeyboardBackToTheView) {
  auto& view = showView();
  auto* const help = window_.menuBar()->actions().back()->menu();
  ASSERT_NE(help, nullptr);
  help->actions().front()->trigger();
  auto* const box = window_.findChild<QMessageBox*>();
  ASSERT_NE(box, nullptr);
  EXPECT_TRUE(box->isVisible());
  EXPECT_TRUE(box->text().contains(host::kVersion)) << box->text().toStdString();
  QTest::keyClick(box, Qt::Key_Escape);
  settle();
  EXPECT_EQ(window_.findChild<QMessageBox*>(), nullptr);
  EXPECT_EQ(window_.focusWidget(), &view);
}

TEST(WindowIcon, IsInTheProgram) {
  EXPECT_FALSE(QIcon(":/icons/aac-audition.svg").pixmap(48).isNull());
}

TEST_F(Window, IsStillWholeWhenItTellsThatItCloses) {
  auto& view = showView();
  bool wasVisible = false;
  QObject::connect(&window_, &MainWindow::closing, [&] { wasVisible = view.isVisible(); });
  window_.close();
  EXPECT_TRUE(wasVisible);
}

}  // namespace
