#include <QAction>
#include <QKeySequence>
#include <QMenuBar>
#include <QMessageBox>

#include "programs/audition/window/AboutBox.h"
#include "programs/audition/window/MainWindow.h"

namespace host::audition {
namespace {

constexpr int kStep = 5000;

QKeySequence withCtrl(Qt::Key key) {
  return QKeySequence(Qt::CTRL | key);
}

}  // namespace

// All shortcuts have Ctrl, because bare keys belong to the view.
void MainWindow::makeMenus() {
  auto* const file = menuBar()->addMenu(tr("&File"));
  open_ = file->addAction(tr("&Open…"), withCtrl(Qt::Key_O), this, &MainWindow::openRequested);
  recent_ = file->addMenu(tr("Open &Recent"));
  recent_->setToolTipsVisible(true);
  file->addSeparator();
  file->addAction(tr("&Quit"), withCtrl(Qt::Key_Q), this, &QWidget::close);
  auto* const playback = menuBar()->addMenu(tr("&Playback"));
  addTransport(*playback);
  playback->addSeparator();
  addLoop(*playback);
  playback->addSeparator();
  addZoom(*playback);
  menuBar()->addMenu(tr("&Help"))->addAction(tr("&About AAC Audition"), this, [this] {
    makeAboutBox(this)->open();
  });
}

void MainWindow::addTransport(QMenu& menu) {
  auto* const play = menu.addAction(tr("&Play or Pause"), this, &MainWindow::playRequested);
  play->setShortcuts({withCtrl(Qt::Key_P), QKeySequence(Qt::Key_MediaPlay),
                      QKeySequence(Qt::Key_MediaTogglePlayPause)});
  transportActions_ << play
                    << menu.addAction(tr("To the &Beginning"), withCtrl(Qt::Key_Home), this,
                                      &MainWindow::rewindRequested)
                    << menu.addAction(tr("Five Seconds Ba&ck"), withCtrl(Qt::Key_Left), this,
                                      [this] { Q_EMIT moveRequested(-kStep); })
                    << menu.addAction(tr("Five Seconds &Forward"), withCtrl(Qt::Key_Right), this,
                                      [this] { Q_EMIT moveRequested(kStep); });
}

void MainWindow::addLoop(QMenu& menu) {
  loop_ = menu.addAction(tr("&Loop"), withCtrl(Qt::Key_L), this, &MainWindow::loopToggled);
  loop_->setCheckable(true);
  loop_->setEnabled(false);
  removeLoop_ =
      menu.addAction(tr("Re&move Loop"), withCtrl(Qt::Key_D), this, &MainWindow::loopRemoved);
  removeLoop_->setEnabled(false);
  transportActions_ << menu.addAction(tr("&Start Loop Here"), withCtrl(Qt::Key_I), this,
                                      &MainWindow::loopStartRequested)
                    << menu.addAction(tr("&End Loop Here"), withCtrl(Qt::Key_E), this,
                                      &MainWindow::loopEndRequested);
}

void MainWindow::addZoom(QMenu& menu) {
  auto* const in = menu.addAction(tr("Zoom &In"), this,
                                  [this] { transport_->waveform().zoom(WaveformView::kZoomStep); });
  // = as well, for layouts where + needs Shift.
  in->setShortcuts({withCtrl(Qt::Key_Plus), withCtrl(Qt::Key_Equal)});
  transportActions_ << in << menu.addAction(tr("Zoom &Out"), withCtrl(Qt::Key_Minus), this, [this] {
    transport_->waveform().zoom(1 / WaveformView::kZoomStep);
  });
}

}  // namespace host::audition
