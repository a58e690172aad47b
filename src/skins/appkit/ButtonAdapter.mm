#include "skins/appkit/ButtonAdapter.h"

namespace ui::appkit {

namespace {

bool isOnOff(NSButton* button) {
  return [[button cell] showsStateBy] != NSNoCellMask;
}

}  // namespace

int ButtonAdapter::state() const {
  return isOnOff(control()) && [control() state] == 1 ? 1 : 0;
}

void ButtonAdapter::setState(int state) {
  [control() setState:state != 0 ? 1 : 0];
}

void ButtonAdapter::performClick() {
  if (!isEnabled()) {
    return;
  }
  // `performClick:` would show the button pressed for a while and run the event loop meanwhile.
  if (isOnOff(control())) {
    [control() setNextState];
  }
  [control() sendAction:[control() action] to:[control() target]];
}

int ButtonAdapter::tag() const {
  return static_cast<int>([control() tag]);
}

}  // namespace ui::appkit
