#include "host/playback/SoundSystems.h"

#include <dlfcn.h>

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

void silenceAlsa() {
  // RtAudio brings the library into the process, where it was built for ALSA.
  static void* const symbol = ::dlsym(RTLD_DEFAULT, "snd_lib_error_set_handler");
  if (symbol != nullptr) reinterpret_cast<int (*)(AlsaErrorHandler)>(symbol)(ignore);
}

}  // namespace host
