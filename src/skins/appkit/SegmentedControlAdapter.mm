#include "skins/appkit/SegmentedControlAdapter.h"

namespace ui::appkit {

int SegmentedControlAdapter::selectedSegment() const {
  return static_cast<int>([control() selectedSegment]);
}

void SegmentedControlAdapter::setSelectedSegment(int segment) {
  [control() setSelectedSegment:segment];
}

}  // namespace ui::appkit
