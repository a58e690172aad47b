#pragma once

namespace ui::qt {

/// Makes Qt's event loop deliver audio units' events to the main thread's listeners, unless that
/// thread's `audio_unit::RunLoop` is already being pumped. Ends with the application object or the
/// thread, whichever goes first. Main thread only.
void pumpAudioUnitEvents();

}  // namespace ui::qt
