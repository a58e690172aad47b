#pragma once

#include <QWidget>

namespace ui::qt {

/// A lamp that shows its state by shape as well as colour: a dim round spot when dark, a bright
/// square when lit.
class Lamp final : public QWidget {
 public:
  explicit Lamp(QWidget* parent = nullptr);

  int value() const { return value_; }
  /// 0 is dark, anything else lit.
  void setValue(int value);
  bool isLit() const { return value_ != 0; }

  QSize sizeHint() const override;
  QSize minimumSizeHint() const override { return sizeHint(); }

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  int value_ = 0;
};

}  // namespace ui::qt
