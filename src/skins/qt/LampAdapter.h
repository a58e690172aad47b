#pragma once

#include "skins/qt/Adapter.h"
#include "skins/qt/Lamp.h"

namespace ui::qt {

class LampAdapter final : public Adapter<LevelIndicator, Lamp> {
 public:
  using Adapter::Adapter;
  int intValue() const override { return widget().value(); }
  void setIntValue(int value) override { widget().setValue(value); }
};

}  // namespace ui::qt
