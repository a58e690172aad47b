#include "programs/audition/window/TransportBar.h"

#include <QEvent>
#include <QHBoxLayout>
#include <QVBoxLayout>

#include "programs/audition/waveform/TimeText.h"
#include "programs/audition/window/Spacing.h"
#include "ui/ReadableColor.h"

namespace host::audition {
namespace {

constexpr int kDeviceWidth = 176;
constexpr int kLoopWidth = 128;

/// Lets a click on the control leave the keyboard focus with the view.
template <class Control>
Control* keepFocusInView(Control* control) {
  control->setFocusPolicy(Qt::TabFocus);
  return control;
}

QHBoxLayout* row() {
  auto* const layout = new QHBoxLayout;
  layout->setContentsMargins(2 * kGrid, 0, 2 * kGrid, 0);
  layout->setSpacing(kGrid);
  return layout;
}

}  // namespace

TransportBar::TransportBar(QWidget* parent)
    : QWidget(parent),
      open_(keepFocusInView(new QPushButton(tr("Open…"), this))),
      file_(new ElidedLabel(Qt::ElideMiddle, this)),
      device_(keepFocusInView(new QPushButton(this))),
      deviceMenu_(new QMenu(this)),
      waveform_(new WaveformView(this)),
      play_(keepFocusInView(new PlayButton(this))),
      time_(keepFocusInView(new TimeDisplay(this))),
      total_(new QLabel(this)),
      analysis_(new AnalysisIndicator(this)),
      loop_(keepFocusInView(new QPushButton(this))) {
  device_->setMenu(deviceMenu_);
  device_->setFixedWidth(kDeviceWidth);
  device_->setToolTip(tr("The device that plays"));
  file_->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
  file_->setAlignment(Qt::AlignLeft | Qt::AlignVCenter);
  loop_->setCheckable(true);
  loop_->setFixedWidth(kLoopWidth);
  layOut();

  connect(open_, &QPushButton::clicked, this, &TransportBar::openClicked);
  connect(play_, &PlayButton::clicked, this, &TransportBar::playClicked);
  connect(loop_, &QPushButton::clicked, this, [this] {
    // The button changes only when `setLoop` says so.
    loop_->setChecked(loopIsLit_);
    Q_EMIT loopToggled();
  });
  connect(waveform_, &WaveformView::loopToggled, this, &TransportBar::loopToggled);
  setLoop(std::nullopt, false, 0);
  setTransportEnabled(false);
  setFileName({});
  setDeviceName(tr("No device"));
}

void TransportBar::layOut() {
  auto* const upper = row();
  upper->addWidget(open_);
  upper->addWidget(file_, 1);
  upper->addWidget(device_);
  auto* const lower = row();
  lower->addWidget(play_);
  lower->addWidget(time_);
  lower->addWidget(total_);
  lower->addWidget(analysis_, 1);
  lower->addWidget(loop_);
  auto* const rows = new QVBoxLayout(this);
  rows->setContentsMargins(0, kGrid, 0, kGrid);
  rows->setSpacing(kGrid);
  rows->addLayout(upper);
  rows->addWidget(waveform_);
  rows->addLayout(lower);
}

void TransportBar::setFileName(const QString& name) {
  file_->setFullText(name.isEmpty() ? tr("No file") : name);
  file_->setEnabled(!name.isEmpty());
}

void TransportBar::setTransportEnabled(bool enabled) {
  for (QWidget* const each : {static_cast<QWidget*>(play_), static_cast<QWidget*>(time_),
                              static_cast<QWidget*>(waveform_)}) {
    each->setEnabled(enabled);
  }
}

void TransportBar::setOpenEnabled(bool enabled) {
  open_->setEnabled(enabled);
}

void TransportBar::setPlaying(bool playing) {
  play_->setPlaying(playing);
}

void TransportBar::showTime(std::int64_t position, std::int64_t length, std::uint32_t sampleRate) {
  time_->showTime(position, length, sampleRate);
  const auto total = tr("of %1", "the whole length").arg(timeText(length, sampleRate));
  if (total_->text() != total) total_->setText(total);
}

void TransportBar::setLoop(const std::optional<LoopRange>& loop, bool isOn,
                           std::uint32_t sampleRate) {
  loop_->setEnabled(loop.has_value());
  if (const bool lit = loop && isOn; lit != loopIsLit_) {
    loopIsLit_ = lit;
    loop_->setChecked(lit);
    showLoopState();
  }
  const auto text = loop ? tr("Loop %1").arg(timeText(loop->length(), sampleRate)) : tr("Loop");
  if (text == loop_->text() && !loop_->toolTip().isEmpty()) return;
  loop_->setText(text);
  loop_->setToolTip(
      loop ? tr("Loop from %1 to %2; click to switch it on or off")
                 .arg(timeText(loop->start, sampleRate), timeText(loop->end, sampleRate))
           : tr("Drag across the waveform to set a loop"));
}

void TransportBar::showLoopState() {
  // In some styles a pressed button is hard to tell from an ordinary one.
  auto colors = palette();
  if (loopIsLit_) {
    const auto accent = colors.color(QPalette::Highlight);
    const bool takesLight = ui::isDark({accent.redF(), accent.greenF(), accent.blueF(), 1});
    colors.setColor(QPalette::Button, accent);
    colors.setColor(QPalette::ButtonText, takesLight ? Qt::white : Qt::black);
  }
  loop_->setPalette(colors);
}

void TransportBar::changeEvent(QEvent* event) {
  if (event->type() == QEvent::PaletteChange) showLoopState();
  QWidget::changeEvent(event);
}

void TransportBar::setDeviceName(const QString& name) {
  const int room = kDeviceWidth - 5 * kGrid;
  const auto text = device_->fontMetrics().elidedText(name, Qt::ElideRight, room);
  if (device_->text() != text) device_->setText(text);
}

}  // namespace host::audition
