#include "skins/appkit/KeyCodes.h"

#include "ui/KeyPositions.h"

namespace ui::appkit {

std::uint16_t positionCode(NSEvent* event) {
#ifdef GNUSTEP
  return positionCodeForX11([event keyCode]);
#else
  return [event keyCode];
#endif
}

}  // namespace ui::appkit
