#pragma once

#include <QObject>

#include "ui/Geometry.h"

class QWidget;

namespace ui::qt {

/// The dynamic property (a point) that gives a widget outside every layout its place: its lower
/// left corner, x from the left edge of its parent, y upwards from the lower edge of the view as
/// the interface file draws it.
inline constexpr const char* kFrameOriginProperty = "frameOrigin";

Point frameOrigin(const QWidget& widget);
/// A widget in a layout stays where the layout puts it.
void setFrameOrigin(QWidget& widget, Point origin);

/// Keeps a widget where its `kFrameOriginProperty` says. Belongs to the widget.
class FramePlacement final : public QObject {
 public:
  /// `drawnHeight` is the view's height in the interface file. The view encloses the widget.
  FramePlacement(QWidget& widget, QWidget& view, int drawnHeight);

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  void place();

  QWidget& widget_;
  QWidget& view_;
  int drawnHeight_;
};

}  // namespace ui::qt
