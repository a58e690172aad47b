#include "programs/audition/window/MainWindow.h"

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

/// The path of a dragged file, if it is a single local one; otherwise empty.
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
  // The window always has the size of its contents.
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
  // The layout's parent widget owns it now.
  static_cast<void>(view.release());
  view_ = widget;
  view_->show();
  view_->setFocus();
}

void MainWindow::followView() {
  // Left to itself the layout would follow two turns of the event loop later, and flicker.
  for (auto* const each : {static_cast<QLayout*>(rows_), layout()}) {
    each->invalidate();
    each->activate();
  }
}

void MainWindow::removeView() {
  if (view_ == nullptr) return;
  // The view releases the unit when it leaves its parent.
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
  // Keys that no control around the view has used go to the view; those it ignores come back here.
  if (view_ == nullptr || isForwardingKey_) return;
  if (view_ == focusWidget() || view_->isAncestorOf(focusWidget())) return;
  isForwardingKey_ = true;
  QCoreApplication::sendEvent(view_, event);
  isForwardingKey_ = false;
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
