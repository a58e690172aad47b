#pragma once

#include <QWidget>

#include "programs/audition/ElidedLabel.h"

namespace host::audition {

/// The row below the view: what the encoder really does, and what the user should know.
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
