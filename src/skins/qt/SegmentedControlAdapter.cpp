#include "skins/qt/SegmentedControlAdapter.h"

#include <QKeyEvent>
#include <QLayout>
#include <algorithm>
#include <cstddef>
#include <utility>

namespace ui::qt {

std::vector<QAbstractButton*> segmentsOf(const QWidget& widget) {
  std::vector<QAbstractButton*> segments;
  const QLayout* layout = widget.layout();
  for (int place = 0; layout != nullptr && place < layout->count(); ++place) {
    if (auto* button = qobject_cast<QAbstractButton*>(layout->itemAt(place)->widget())) {
      segments.push_back(button);
    }
  }
  return segments;
}

SegmentedControlAdapter::SegmentedControlAdapter(QWidget& widget)
    : Adapter(widget), segments_(segmentsOf(widget)) {
  for (std::size_t index = 0; index < segments_.size(); ++index) {
    QObject::connect(segments_[index], &QAbstractButton::clicked, receiver(), [this, index] {
      setSelectedSegment(static_cast<int>(index));
      send(action_, this);
    });
    segments_[index]->installEventFilter(this);
  }
}

int SegmentedControlAdapter::selectedSegment() const {
  for (std::size_t index = 0; index < segments_.size(); ++index) {
    if (segments_[index]->isChecked()) {
      return static_cast<int>(index);
    }
  }
  return -1;
}

void SegmentedControlAdapter::setSelectedSegment(int segment) {
  for (std::size_t index = 0; index < segments_.size(); ++index) {
    segments_[index]->setChecked(static_cast<int>(index) == segment);
  }
}

void SegmentedControlAdapter::setAction(Action action) {
  action_ = std::move(action);
}

bool SegmentedControlAdapter::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() != QEvent::KeyPress) {
    return false;
  }
  const int key = static_cast<const QKeyEvent*>(event)->key();
  if (key != Qt::Key_Left && key != Qt::Key_Right) {
    return false;
  }
  const bool forward = (key == Qt::Key_Right) == (widget().layoutDirection() == Qt::LeftToRight);
  stepFrom(watched, forward ? 1 : -1);
  return true;
}

void SegmentedControlAdapter::stepFrom(const QObject* segment, int step) {
  const auto from = std::find(segments_.begin(), segments_.end(), segment);
  const auto next = from - segments_.begin() + step;
  if (next >= 0 && next < static_cast<std::ptrdiff_t>(segments_.size())) {
    QAbstractButton* reached = segments_[static_cast<std::size_t>(next)];
    reached->setFocus(Qt::TabFocusReason);
    reached->click();
  }
}

}  // namespace ui::qt
