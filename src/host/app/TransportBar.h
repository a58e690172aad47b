#pragma once

#include <QLabel>
#include <QMenu>
#include <QPushButton>
#include <QWidget>

#include "host/app/ElidedLabel.h"
#include "host/app/PlayButton.h"
#include "host/app/PositionSlider.h"

namespace host::app {

/// The row above the view: what plays, where it is, and to which device.
class TransportBar : public QWidget {
  Q_OBJECT

 public:
  explicit TransportBar(QWidget* parent = nullptr);

  void setFileName(const QString& name);
  void setTransportEnabled(bool enabled);
  void setOpenEnabled(bool enabled);
  void setPlaying(bool playing);
  void setLength(int milliseconds);
  void setPosition(int milliseconds);
  void setDeviceName(const QString& name);
  /// Filled by its `aboutToShow`.
  QMenu* deviceMenu() { return deviceMenu_; }

 Q_SIGNALS:
  void openClicked();
  void playClicked();
  void positionChosen(int milliseconds);

 private:
  void showElapsed();

  QPushButton* open_;
  ElidedLabel* file_;
  QPushButton* device_;
  QMenu* deviceMenu_;
  PlayButton* play_;
  QLabel* elapsed_;
  PositionSlider* slider_;
  QLabel* total_;
};

/// "3:07" or "1:02:45".
QString timeText(int milliseconds);

}  // namespace host::app
