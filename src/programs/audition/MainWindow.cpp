#include "programs/audition/MainWindow.h"

#include <QAction>
#include <QCloseEvent>
#include <QCoreApplication>
#include <QDragEnterEvent>
#include <QFrame>
#include <QKeyEvent>
#include <QLabel>
#include <QMimeData>
#include <utility>

#include "host/messages/Failure.h"

namespace host::audition {
namespace {

constexpr int kViewWidth = 560;
constexpr int kEmptyHeight = 195;

QFrame* separator(QWidget* parent) {
  auto* const line = new QFrame(parent);
  line->setFrameShape(QFrame::HLine);
  line->setFrameShadow(QFrame::Plain);
  line->setForegroundRole(QPalette::Mid);
  line->setFixedHeight(1);
  return line;
}

/// The one local file that a drag brings, or nothing.
QString droppedFile(const QMimeData& data) {
  const auto urls = data.urls();
  return urls.size() == 1 && urls.front().isLocalFile() ? urls.front().toLocalFile() : QString();
}

}  // namespace

MainWindow::MainWindow()
    : transport_(new TransportBar(this)),
      status_(new StatusLine(this)),
      rows_(new QVBoxLayout),
      invitation_(new QLabel(tr("Open a sound file, or drop one here"), this)) {
  setWindowTitle(tr("AAC Audition"));
  setAcceptDrops(true);
  static_cast<QLabel*>(invitation_)->setAlignment(Qt::AlignCenter);
  invitation_->setEnabled(false);
  invitation_->setFixedSize(kViewWidth, kEmptyHeight);

  auto* const centre = new QWidget(this);
  centre->setLayout(rows_);
  rows_->setContentsMargins(0, 0, 0, 0);
  rows_->setSpacing(0);
  rows_->addWidget(transport_);
  rows_->addWidget(separator(this));
  rows_->addWidget(invitation_);
  rows_->addWidget(separator(this));
  rows_->addWidget(status_);
  centre->setFixedWidth(kViewWidth);
  setCentralWidget(centre);
  // The window is as large as its contents ask for, always.
  rows_->setSizeConstraint(QLayout::SetFixedSize);
  layout()->setSizeConstraint(QLayout::SetFixedSize);

  makeMenus();
  connect(transport_, &TransportBar::openClicked, this, &MainWindow::openRequested);
  connect(transport_, &TransportBar::playClicked, this, &MainWindow::playRequested);
  connect(transport_, &TransportBar::loopToggled, this, &MainWindow::loopToggled);
  setTransportEnabled(false);
}

MainWindow::~MainWindow() {
  removeView();
}

void MainWindow::setView(std::unique_ptr<ui::NativeView> view) {
  auto* const widget = dynamic_cast<QWidget*>(view.get());
  if (view && widget == nullptr) {
    throw Failure(
        Message::words("cannot show the converter's view: it is made for another toolkit"));
  }
  removeView();
  invitation_->setVisible(widget == nullptr);
  if (widget == nullptr) return;
  view->setFrameSizeObserver([this](ui::Size) { followView(); });
  rows_->insertWidget(rows_->indexOf(invitation_), widget, 0, Qt::AlignLeft);
  // The layout's widget is its parent now and owns it.
  static_cast<void>(view.release());
  view_ = widget;
  view_->show();
  view_->setFocus();
}

void MainWindow::followView() {
  // At once: on its own the layout would follow in two turns of the event loop, which flickers.
  for (auto* const each : {static_cast<QLayout*>(rows_), layout()}) {
    each->invalidate();
    each->activate();
  }
}

void MainWindow::removeView() {
  if (view_ == nullptr) return;
  // Leaving its parent is what tells the view to let go of the unit.
  view_->setParent(nullptr);
  delete std::exchange(view_, nullptr);
}

void MainWindow::setOpenEnabled(bool enabled) {
  open_->setEnabled(enabled);
  recent_->setEnabled(enabled);
  transport_->setOpenEnabled(enabled);
  setAcceptDrops(enabled);
}

void MainWindow::setTransportEnabled(bool enabled) {
  transport_->setTransportEnabled(enabled);
  for (auto* const action : transportActions_) action->setEnabled(enabled);
}

void MainWindow::setLoop(bool exists, bool isOn) {
  loop_->setEnabled(exists);
  loop_->setChecked(isOn);
  removeLoop_->setEnabled(exists);
}

void MainWindow::closeEvent(QCloseEvent* event) {
  Q_EMIT closing();
  QMainWindow::closeEvent(event);
}

void MainWindow::keyPressEvent(QKeyEvent* event) {
  event->ignore();
  // What no control around the view has taken is the view's. What it leaves over comes back here.
  if (view_ == nullptr || handsKeyOn_) return;
  if (view_ == focusWidget() || view_->isAncestorOf(focusWidget())) return;
  handsKeyOn_ = true;
  QCoreApplication::sendEvent(view_, event);
  handsKeyOn_ = false;
}

void MainWindow::dragEnterEvent(QDragEnterEvent* event) {
  if (!droppedFile(*event->mimeData()).isEmpty()) event->acceptProposedAction();
}

void MainWindow::dropEvent(QDropEvent* event) {
  const auto path = droppedFile(*event->mimeData());
  if (path.isEmpty()) return;
  event->acceptProposedAction();
  Q_EMIT fileDropped(path);
}

}  // namespace host::audition
