#pragma once

#include "skins/appkit/Adapter.h"

namespace ui::appkit {

class SliderAdapter final : public Adapter<Slider, NSSlider> {
 public:
  using Adapter::Adapter;

  int intValue() const override;
  void setFloatValue(float value) override;
};

}  // namespace ui::appkit
