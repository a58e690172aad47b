#pragma once

namespace ui::qt {

/// Lets Qt's event loop deliver the events of audio units to listeners of the main thread, unless
/// somebody pumps that thread's `audio_unit::RunLoop` already. It ends with the application object.
/// Main thread only.
void pumpAudioUnitEvents();

}  // namespace ui::qt
