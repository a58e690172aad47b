#pragma once

#include <QSlider>

namespace host::app {

/// The place in the file, in milliseconds. A click goes right there; while the user drags, the
/// slider does not follow the player.
class PositionSlider : public QSlider {
  Q_OBJECT

 public:
  explicit PositionSlider(QWidget* parent = nullptr);

  void showPosition(int milliseconds);

 Q_SIGNALS:
  /// The user wants to hear this place.
  void chosen(int milliseconds);

 protected:
  void mousePressEvent(QMouseEvent* event) override;
  void mouseMoveEvent(QMouseEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;

 private:
  int placeAt(const QPointF& point) const;
};

}  // namespace host::app
