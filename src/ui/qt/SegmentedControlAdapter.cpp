#include "ui/qt/SegmentedControlAdapter.h"

#include <QLayout>
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

}  // namespace ui::qt
