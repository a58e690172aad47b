#pragma once

#include <QAbstractButton>
#include <vector>

#include "skins/qt/Adapter.h"

namespace ui::qt {

/// A row of checkable buttons, at most one of which is on. Its segments are the buttons in the
/// widget's own layout. The left and right arrow keys select the neighbouring segment.
class SegmentedControlAdapter final : public QObject,
                                      public Adapter<SegmentedControl, QWidget>,
                                      public ActionSource {
 public:
  explicit SegmentedControlAdapter(QWidget& widget);

  int selectedSegment() const override;
  void setSelectedSegment(int segment) override;
  void setAction(Action action) override;

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  void stepFrom(const QObject* segment, int step);

  std::vector<QAbstractButton*> segments_;
  Action action_;
};

/// The buttons in the widget's own layout, in order.
std::vector<QAbstractButton*> segmentsOf(const QWidget& widget);

}  // namespace ui::qt
