#include "host/playback/SoundSystems.h"

#include <dlfcn.h>

#include <cstdlib>

namespace host {
namespace {

using AlsaErrorHandler = void (*)(const char* file, int line, const char* function, int error,
                                  const char* format, ...);

void ignore(const char* /*file*/, int /*line*/, const char* /*function*/, int /*error*/,
            const char* /*format*/, ...) {}

}  // namespace

std::mutex& soundSystemsMutex() {
  static std::mutex mutex;
  return mutex;
}

void askForShortBuffers() {
  // RtAudio leaves the buffer to PulseAudio's library, which reads its length here.
  ::setenv("PULSE_LATENCY_MSEC", "100", 0);
}

void silenceAlsa() {
  // RtAudio brings the library into the process, where it was built for ALSA.
  static void* const symbol = ::dlsym(RTLD_DEFAULT, "snd_lib_error_set_handler");
  if (symbol != nullptr) reinterpret_cast<int (*)(AlsaErrorHandler)>(symbol)(ignore);
}

}  // namespace host
