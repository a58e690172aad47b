#include "host/files/AtomicFile.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <system_error>

#include "host/messages/Failure.h"

namespace host {
namespace {

[[noreturn]] void refuseFolder(const std::filesystem::path& path) {
  throw Failure(Message::words("cannot write '%1': it is a folder; give the path of a file"),
                {path.string()});
}

[[noreturn]] void refusePlace(const std::filesystem::path& path, const std::string& why) {
  throw Failure(Message::words("cannot write '%1': %2; choose another place"),
                {path.string(), why});
}

std::string reason(int error) {
  return std::generic_category().message(error);
}

void requireReplaceable(const std::filesystem::path& path) {
  std::error_code error;
  const auto status = std::filesystem::status(path, error);
  if (status.type() == std::filesystem::file_type::not_found) return;
  if (error) refusePlace(path, error.message());
  if (status.type() == std::filesystem::file_type::directory) refuseFolder(path);
  if (status.type() != std::filesystem::file_type::regular) {
    throw Failure(
        Message::words("cannot write '%1': it is not an ordinary file; choose another name"),
        {path.string()});
  }
  if (::access(path.c_str(), W_OK) != 0) {
    throw Failure(Message::words("cannot write '%1': %2; choose another name"),
                  {path.string(), reason(errno)});
  }
}

}  // namespace

AtomicFile::AtomicFile(const std::filesystem::path& path) : path_(path) {
  if (!path.has_filename()) refuseFolder(path);
  requireReplaceable(path);
  // A link keeps pointing to where it does: the file behind it is replaced.
  std::error_code error;
  if (std::filesystem::is_symlink(path, error)) path_ = std::filesystem::weakly_canonical(path);
  std::string name = path_.string() + ".part-XXXXXX";
  const int descriptor = ::mkostemp(name.data(), O_CLOEXEC);
  if (descriptor < 0) {
    throw Failure(Message::words("cannot write '%1': %2; choose a folder that can be written to"),
                  {path.string(), reason(errno)});
  }
  const auto mask = ::umask(0);
  ::umask(mask);
  ::fchmod(descriptor, 0666 & ~mask);
  ::close(descriptor);
  temporary_ = name;
}

AtomicFile::~AtomicFile() {
  if (!committed_) ::unlink(temporary_.c_str());
}

void AtomicFile::commit() {
  if (::rename(temporary_.c_str(), path_.c_str()) != 0) {
    refusePlace(path_, reason(errno));
  }
  committed_ = true;
}

}  // namespace host
