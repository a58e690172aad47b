#pragma once

#include <QObject>

#include "ui/Geometry.h"

class QWidget;

namespace ui::qt {

/// The dynamic property (a point) that places a widget which is in no layout. It is the widget's
/// lower left corner: x from the left edge of its parent, y upwards from the lower edge of the view
/// as drawn in the interface file.
inline constexpr const char* kFrameOriginProperty = "frameOrigin";

/// The value of `kFrameOriginProperty` or, without one, the lower left corner in the parent.
Point frameOrigin(const QWidget& widget);
/// Sets `kFrameOriginProperty`. A widget in a layout stays where the layout puts it.
void setFrameOrigin(QWidget& widget, Point origin);

/// Keeps a widget where its `kFrameOriginProperty` says. The widget owns it.
class FramePlacement final : public QObject {
 public:
  /// `view` is an ancestor of the widget; `drawnHeight` is its height in the interface file.
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
