#pragma once

#include <filesystem>
#include <memory>
#include <string>

struct SF_INFO;

namespace host {

/// Closes a `SNDFILE` and the descriptor that it was opened with, if any.
struct CloseSoundFile {
  int descriptor = -1;

  void operator()(void* file) const;
};

/// A `SNDFILE`.
using OpenSoundFile = std::unique_ptr<void, CloseSoundFile>;

/// Opens a file for reading, and keeps the decoders from printing their remarks about it on
/// standard error. Null, with libsndfile's reason in `why`, if it cannot read the file; throws
/// `std::system_error` if the system does not open it. Any thread.
OpenSoundFile openQuietly(const std::filesystem::path& path, SF_INFO& info, std::string& why);

}  // namespace host
