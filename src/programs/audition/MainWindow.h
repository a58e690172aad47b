#pragma once

#include <QMainWindow>
#include <QVBoxLayout>
#include <memory>

#include "programs/audition/StatusLine.h"
#include "programs/audition/TransportBar.h"
#include "ui/CustomView.h"

class QAction;

namespace host::audition {

/// The window: transport above, the converter's view, the status below. Its width is the view's,
/// its height follows the view's.
class MainWindow : public QMainWindow {
  Q_OBJECT

 public:
  MainWindow();
  ~MainWindow() override;

  TransportBar& transport() { return *transport_; }
  StatusLine& status() { return *status_; }

  /// Puts the view into the window in place of the earlier one, which is destroyed. Null shows an
  /// invitation to open a file. Throws `Failure` for a view of another toolkit.
  void setView(std::unique_ptr<ui::NativeView> view);
  /// Whether files can be opened and dropped.
  void setOpenEnabled(bool enabled);
  void setTransportEnabled(bool enabled);
  /// Whether there is a loop, and whether it is in use.
  void setLoop(bool exists, bool isOn);
  /// Filled by its `aboutToShow`.
  QMenu* recentMenu() { return recent_; }

 Q_SIGNALS:
  void openRequested();
  void fileDropped(const QString& path);
  void playRequested();
  /// Relative, in milliseconds.
  void moveRequested(int milliseconds);
  void rewindRequested();
  void loopToggled();
  void loopRemoved();
  /// At the place that sounds.
  void loopBeginRequested();
  void loopEndRequested();
  /// The window is about to close, still as the user saw it.
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
  bool handsKeyOn_ = false;
  QAction* open_ = nullptr;
  QMenu* recent_ = nullptr;
  QAction* loop_ = nullptr;
  QAction* removeLoop_ = nullptr;
  QList<QAction*> transportActions_;
};

}  // namespace host::audition
