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

/// The descriptor is opened here, not on the quiet thread, so that the library can go on using it.
/// Given a descriptor, the library judges by the content alone.
OpenSoundFile openByContent(const std::filesystem::path& path, SF_INFO& info, int& error) {
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

/// Where the content shows nothing, the name may: MP3 after other bytes, formats without a header.
/// The library can be heard here, so the file is only opened once a quiet trial has succeeded.
OpenSoundFile openByName(const std::filesystem::path& path, SF_INFO& info, std::string& why) {
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

OpenSoundFile openQuietly(const std::filesystem::path& path, SF_INFO& info, std::string& why) {
  const std::lock_guard lock(reasonMutex());
  int error = SF_ERR_NO_ERROR;
  if (auto file = openByContent(path, info, error)) return file;
  if (error == SF_ERR_UNRECOGNISED_FORMAT) return openByName(path, info, why);
  why = sf_strerror(nullptr);
  return nullptr;
}

}  // namespace host
