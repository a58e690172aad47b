#pragma once

#include "skins/appkit/Adapter.h"

namespace ui::appkit {

class SegmentedControlAdapter final : public Adapter<SegmentedControl, NSSegmentedControl> {
 public:
  using Adapter::Adapter;

  int selectedSegment() const override;
  void setSelectedSegment(int segment) override;
};

}  // namespace ui::appkit
