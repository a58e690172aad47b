#include "host/files/QuietSoundFile.h"

#include <fcntl.h>
#include <sndfile.h>
#include <unistd.h>

#include <cerrno>
#include <mutex>
#include <system_error>

#include "host/messages/QuietCall.h"

namespace host {
namespace {

/// The library has one reason for all threads, and the next to open a file clears it.
std::mutex& reasonMutex() {
  static std::mutex mutex;
  return mutex;
}

/// By a descriptor of this thread's table, which the file that the library opened on the quiet
/// thread goes on to use. By descriptor the library goes by the content alone.
OpenSoundFile openedByContent(const std::filesystem::path& path, SF_INFO& info, int& error) {
  const int descriptor = ::open(path.c_str(), O_RDONLY | O_CLOEXEC);
  if (descriptor < 0) throw std::system_error(errno, std::generic_category());
  SNDFILE* file = nullptr;
  callQuietly([&] {
    file = sf_open_fd(descriptor, SFM_READ, &info, SF_FALSE);
    error = sf_error(file);
  });
  if (file == nullptr) ::close(descriptor);
  return {file, {descriptor}};
}

/// What the content does not show, the name may: MP3 behind other bytes, formats without a header.
/// Only a file that has been seen to open is opened where the library can be heard.
OpenSoundFile openedByName(const std::filesystem::path& path, SF_INFO& info, std::string& why) {
  bool opens = false;
  callQuietly([&] {
    SF_INFO unused{};
    const OpenSoundFile trial(sf_open(path.c_str(), SFM_READ, &unused));
    opens = trial != nullptr;
    if (!opens) why = sf_strerror(nullptr);
  });
  if (!opens) return nullptr;
  info = {};
  OpenSoundFile file(sf_open(path.c_str(), SFM_READ, &info));
  if (!file) why = sf_strerror(nullptr);
  return file;
}

}  // namespace

void CloseSoundFile::operator()(void* file) const {
  sf_close(static_cast<SNDFILE*>(file));
  if (descriptor >= 0) ::close(descriptor);
}

OpenSoundFile openedQuietly(const std::filesystem::path& path, SF_INFO& info, std::string& why) {
  const std::lock_guard lock(reasonMutex());
  int error = SF_ERR_NO_ERROR;
  if (auto file = openedByContent(path, info, error)) return file;
  if (error == SF_ERR_UNRECOGNISED_FORMAT) return openedByName(path, info, why);
  why = sf_strerror(nullptr);
  return nullptr;
}

}  // namespace host
