#pragma once

namespace ui::appkit {

/// Makes the main thread's run loop deliver audio units' events for the rest of the process, unless
/// that thread's `audio_unit::RunLoop` is already being pumped. Has no effect on macOS, whose own
/// framework delivers them. Main thread only.
void pumpAudioUnitEvents();

}  // namespace ui::appkit
