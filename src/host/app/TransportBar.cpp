#include "host/app/TransportBar.h"

#include <QHBoxLayout>
#include <QVBoxLayout>

namespace host::app {
namespace {

constexpr int grid = 8;
constexpr int deviceWidth = 176;

/// Keys belong to the view: a click here does not take the focus away from it.
template <class Control>
Control* keepingFocusInView(Control* control) {
  control->setFocusPolicy(Qt::TabFocus);
  return control;
}

QLabel* timeLabel(QWidget* parent) {
  auto* const label = new QLabel(timeText(0), parent);
  label->setMinimumWidth(label->fontMetrics().horizontalAdvance("0:00:00"));
  return label;
}

}  // namespace

QString timeText(int milliseconds) {
  const int seconds = milliseconds / 1000;
  const auto two = [](int number) { return QString("%1").arg(number, 2, 10, QChar('0')); };
  const QString tail = ":" + two(seconds % 60);
  if (seconds < 3600) return QString::number(seconds / 60) + tail;
  return QString::number(seconds / 3600) + ":" + two(seconds / 60 % 60) + tail;
}

TransportBar::TransportBar(QWidget* parent)
    : QWidget(parent),
      open_(keepingFocusInView(new QPushButton(tr("Open…"), this))),
      file_(new ElidedLabel(Qt::ElideMiddle, this)),
      device_(keepingFocusInView(new QPushButton(this))),
      deviceMenu_(new QMenu(this)),
      play_(keepingFocusInView(new PlayButton(this))),
      elapsed_(timeLabel(this)),
      slider_(keepingFocusInView(new PositionSlider(this))),
      total_(timeLabel(this)) {
  device_->setMenu(deviceMenu_);
  device_->setFixedWidth(deviceWidth);
  device_->setToolTip(tr("The device that plays"));
  total_->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
  file_->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
  file_->setAlignment(Qt::AlignLeft | Qt::AlignVCenter);

  auto* const upper = new QHBoxLayout;
  upper->setSpacing(grid);
  upper->addWidget(open_);
  upper->addWidget(file_, 1);
  upper->addWidget(device_);
  auto* const lower = new QHBoxLayout;
  lower->setSpacing(grid);
  lower->addWidget(play_);
  lower->addWidget(elapsed_);
  lower->addWidget(slider_, 1);
  lower->addWidget(total_);
  auto* const rows = new QVBoxLayout(this);
  rows->setContentsMargins(2 * grid, grid, 2 * grid, grid);
  rows->setSpacing(grid);
  rows->addLayout(upper);
  rows->addLayout(lower);

  connect(open_, &QPushButton::clicked, this, &TransportBar::openClicked);
  connect(play_, &PlayButton::clicked, this, &TransportBar::playClicked);
  connect(slider_, &PositionSlider::chosen, this, &TransportBar::positionChosen);
  connect(slider_, &PositionSlider::valueChanged, this, &TransportBar::showElapsed);
  connect(slider_, &PositionSlider::sliderMoved, this, &TransportBar::showElapsed);
  setTransportEnabled(false);
  setFileName({});
  setDeviceName(tr("No device"));
}

void TransportBar::setFileName(const QString& name) {
  file_->setFullText(name.isEmpty() ? tr("No file") : name);
  file_->setEnabled(!name.isEmpty());
}

void TransportBar::setTransportEnabled(bool enabled) {
  for (QWidget* const each : {static_cast<QWidget*>(play_), static_cast<QWidget*>(elapsed_),
                              static_cast<QWidget*>(slider_), static_cast<QWidget*>(total_)}) {
    each->setEnabled(enabled);
  }
}

void TransportBar::setOpenEnabled(bool enabled) {
  open_->setEnabled(enabled);
}

void TransportBar::setPlaying(bool playing) {
  play_->setPlaying(playing);
}

void TransportBar::setLength(int milliseconds) {
  if (milliseconds == slider_->maximum()) return;
  slider_->setMaximum(milliseconds);
  total_->setText(timeText(milliseconds));
}

void TransportBar::setPosition(int milliseconds) {
  slider_->showPosition(milliseconds);
}

void TransportBar::setDeviceName(const QString& name) {
  const int room = deviceWidth - 5 * grid;
  const auto text = device_->fontMetrics().elidedText(name, Qt::ElideRight, room);
  if (device_->text() != text) device_->setText(text);
}

void TransportBar::showElapsed() {
  elapsed_->setText(timeText(slider_->sliderPosition()));
}

}  // namespace host::app
