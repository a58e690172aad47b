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

/// Opens a file for reading. Decoders that come upon something odd print it on standard error; here
/// they are not heard. Null, with libsndfile's reason in `why`, for what it cannot read; throws
/// `std::system_error` when the system does not open the file. Any thread.
OpenSoundFile openedQuietly(const std::filesystem::path& path, SF_INFO& info, std::string& why);

}  // namespace host
