#pragma once

#include <QSlider>

#include "skins/qt/Adapter.h"

namespace ui::qt {

/// A slider with integer positions. It sends its action at every step of a drag.
class SliderAdapter final : public Adapter<Slider, QSlider>, public ActionSource {
 public:
  explicit SliderAdapter(QSlider& slider);

  int intValue() const override;
  void setFloatValue(float value) override;
  void setAction(Action action) override;

 private:
  void changeTo(int value);

  Action action_;
  /// True while this adapter itself changes the value.
  bool changing_ = false;
};

}  // namespace ui::qt
