#pragma once

#include <mutex>

namespace host {

/// Held by whoever looks for devices, opens or closes one: RtAudio and the libraries below it keep
/// some of their state once for the process.
std::mutex& soundSystemsMutex();

/// From now on ALSA's library prints nothing on standard error by itself; RtAudio tells what went
/// wrong. JACK's is silenced by RtAudio. Any thread.
void silenceAlsa();

}  // namespace host
