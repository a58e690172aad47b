#pragma once

#include <QAbstractButton>
#include <vector>

#include "ui/qt/Adapter.h"

namespace ui::qt {

/// A row of checkable buttons of which one at most is on: the buttons directly in a widget, in the
/// order of its layout.
class SegmentedControlAdapter final : public Adapter<SegmentedControl, QWidget>,
                                      public ActionSource {
 public:
  explicit SegmentedControlAdapter(QWidget& widget);

  int selectedSegment() const override;
  void setSelectedSegment(int segment) override;
  void setAction(Action action) override;

 private:
  std::vector<QAbstractButton*> segments_;
  Action action_;
};

/// The buttons directly in the widget, in the order of its layout.
std::vector<QAbstractButton*> segmentsOf(const QWidget& widget);

}  // namespace ui::qt
