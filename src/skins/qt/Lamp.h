#pragma once

#include <QWidget>

namespace ui::qt {

/// A lamp that differs in form and colour: dark, a dim round spot; lit, a bright square.
class Lamp final : public QWidget {
 public:
  explicit Lamp(QWidget* parent = nullptr);

  int value() const { return value_; }
  /// 0 is dark.
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
