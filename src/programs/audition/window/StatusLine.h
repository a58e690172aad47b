#pragma once

#include <QWidget>

#include "programs/audition/window/ElidedLabel.h"

namespace host::audition {

/// The row below the view: the encoder's actual setting, and notices to the user.
class StatusLine : public QWidget {
 public:
  explicit StatusLine(QWidget* parent = nullptr);

  void setEncoderText(const QString& text);
  void setNotice(const QString& text);

 private:
  ElidedLabel* encoder_;
  ElidedLabel* notice_;
};

}  // namespace host::audition
