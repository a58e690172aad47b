#include "host/app/StatusLine.h"

#include <QHBoxLayout>

namespace host::app {
namespace {

constexpr int grid = 8;

}  // namespace

StatusLine::StatusLine(QWidget* parent)
    : QWidget(parent),
      encoder_(new ElidedLabel(Qt::ElideRight, this)),
      notice_(new ElidedLabel(Qt::ElideRight, this)) {
  notice_->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
  for (auto* const label : {encoder_, notice_}) {
    label->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
  }
  auto* const row = new QHBoxLayout(this);
  row->setContentsMargins(2 * grid, grid, 2 * grid, grid);
  row->setSpacing(2 * grid);
  row->addWidget(encoder_, 4);
  row->addWidget(notice_, 3);
}

void StatusLine::setEncoderText(const QString& text) {
  encoder_->setFullText(text);
}

void StatusLine::setNotice(const QString& text) {
  notice_->setFullText(text);
}

}  // namespace host::app
