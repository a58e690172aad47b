#pragma once

#include <mutex>

namespace host {

/// Held by whoever looks for devices, opens or closes one: RtAudio and the libraries below it keep
/// some of their state once for the process.
std::mutex& soundSystemsMutex();

/// Asks sound servers for a buffer of a tenth of a second in place of the two seconds that they
/// would choose, unless the user has asked for another length. Changes the environment, so before
/// there are other threads.
void askForShortBuffers();

/// From now on ALSA's library prints nothing on standard error by itself; RtAudio tells what went
/// wrong. JACK's is silenced by RtAudio. Any thread.
void silenceAlsa();

}  // namespace host
