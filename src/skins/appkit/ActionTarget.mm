#include "skins/appkit/ActionTarget.h"

#include "ui/Log.h"

@implementation Velk_ActionTarget

- (void)setReceiver:(ui::appkit::ActionReceiver*)receiver {
  _receiver = receiver;
}

- (void)perform:(id)sender {
  ui::appkit::ActionReceiver* const receiver = _receiver;
  if (receiver != nullptr) {
    ui::runGuarded([&] { receiver->receive(sender); });
  }
}

@end
