#include "programs/audition/window/StatusLine.h"

#include <QHBoxLayout>

#include "programs/audition/window/Spacing.h"

namespace host::audition {

StatusLine::StatusLine(QWidget* parent)
    : QWidget(parent),
      encoder_(new ElidedLabel(Qt::ElideRight, this)),
      notice_(new ElidedLabel(Qt::ElideRight, this)) {
  notice_->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
  // The notice gets the room that the encoder's text leaves.
  encoder_->setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Preferred);
  notice_->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
  auto* const row = new QHBoxLayout(this);
  row->setContentsMargins(2 * kGrid, kGrid, 2 * kGrid, kGrid);
  row->setSpacing(2 * kGrid);
  row->addWidget(encoder_);
  row->addWidget(notice_, 1);
}

void StatusLine::setEncoderText(const QString& text) {
  encoder_->setFullText(text);
}

void StatusLine::setNotice(const QString& text) {
  notice_->setFullText(text);
}

}  // namespace host::audition
