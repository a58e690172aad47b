#pragma once

#include "skins/appkit/Adapter.h"

namespace ui::appkit {

class LampAdapter final : public Adapter<LevelIndicator, NSLevelIndicator> {
 public:
  explicit LampAdapter(NSLevelIndicator* lamp);

  int intValue() const override;
  void setIntValue(int value) override;
};

}  // namespace ui::appkit
