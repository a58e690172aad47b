#pragma once

#include <QAbstractButton>

namespace host::audition {

/// Shows a triangle while it would play and two bars while it would pause, in the palette's
/// colours.
class PlayButton : public QAbstractButton {
  Q_OBJECT

 public:
  explicit PlayButton(QWidget* parent = nullptr);

  void setPlaying(bool playing);
  QSize sizeHint() const override;

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  bool playing_ = false;
};

}  // namespace host::audition
