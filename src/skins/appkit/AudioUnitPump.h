#pragma once

namespace ui::appkit {

/// Lets the main thread's run loop deliver the events of audio units, unless somebody pumps that
/// thread's `audio_unit::RunLoop` already. Nothing to do where the system's own framework does it.
void pumpAudioUnitEvents();

}  // namespace ui::appkit
