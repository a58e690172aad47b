#pragma once

#include <QMainWindow>
#include <QVBoxLayout>
#include <memory>

#include "programs/audition/window/StatusLine.h"
#include "programs/audition/window/TransportBar.h"
#include "ui/CustomView.h"

class QAction;

namespace host::audition {

/// The window: the transport above, the converter's view, the status below. It is as wide as the
/// view, and its height follows the view's.
class MainWindow : public QMainWindow {
  Q_OBJECT

 public:
  MainWindow();
  ~MainWindow() override;

  TransportBar& transport() { return *transport_; }
  StatusLine& status() { return *status_; }

  /// Shows the view in place of the current one, which is destroyed. Null shows an invitation to
  /// open a file. Throws `Failure` for a view of another toolkit.
  void setView(std::unique_ptr<ui::NativeView> view);
  /// Sets whether files can be opened and dropped.
  void setOpenEnabled(bool enabled);
  void setTransportEnabled(bool enabled);
  /// Shows whether there is a loop and whether it is switched on.
  void setLoop(bool exists, bool isOn);
  /// Empty: to be filled on its `aboutToShow`.
  QMenu* recentMenu() { return recent_; }

 Q_SIGNALS:
  void openRequested();
  void fileDropped(const QString& path);
  void playRequested();
  /// By that many milliseconds, forwards or backwards.
  void moveRequested(int milliseconds);
  void rewindRequested();
  void loopToggled();
  void loopRemoved();
  /// At the position heard now.
  void loopStartRequested();
  void loopEndRequested();
  /// The window is about to close and still looks as the user saw it.
  void closing();

 protected:
  void closeEvent(QCloseEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void dragEnterEvent(QDragEnterEvent* event) override;
  void dropEvent(QDropEvent* event) override;

 private:
  void makeMenus();
  void addTransport(QMenu& menu);
  void addLoop(QMenu& menu);
  void addZoom(QMenu& menu);
  void followView();
  void removeView();

  TransportBar* transport_;
  StatusLine* status_;
  QVBoxLayout* rows_;
  QWidget* invitation_;
  QWidget* view_ = nullptr;
  bool isForwardingKey_ = false;
  QAction* open_ = nullptr;
  QMenu* recent_ = nullptr;
  QAction* loop_ = nullptr;
  QAction* removeLoop_ = nullptr;
  QList<QAction*> transportActions_;
};

}  // namespace host::audition
