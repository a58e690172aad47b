#pragma once

#include <QAbstractButton>
#include <vector>

#include "skins/qt/Adapter.h"

namespace ui::qt {

/// A row of checkable buttons of which one at most is on: the buttons directly in a widget, in the
/// order of its layout. The left and right arrow keys go from one to the next and select it.
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

/// The buttons directly in the widget, in the order of its layout.
std::vector<QAbstractButton*> segmentsOf(const QWidget& widget);

}  // namespace ui::qt
