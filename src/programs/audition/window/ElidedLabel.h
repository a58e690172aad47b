#pragma once

#include <QLabel>

namespace host::audition {

/// A line of text with an ellipsis where it does not fit; the tool tip shows all of it.
class ElidedLabel : public QLabel {
  Q_OBJECT

 public:
  explicit ElidedLabel(Qt::TextElideMode mode, QWidget* parent = nullptr);

  void setFullText(const QString& text);

 protected:
  void paintEvent(QPaintEvent* event) override;
  QSize minimumSizeHint() const override;

 private:
  Qt::TextElideMode mode_;
};

}  // namespace host::audition
