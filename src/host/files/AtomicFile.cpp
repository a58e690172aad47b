#include "host/files/AtomicFile.h"

#include <string>
#include <system_error>

#include "host/messages/Failure.h"

namespace host {
namespace {

Failure cannotWrite(const std::filesystem::path& path, const std::error_code& error) {
  const auto name = path.string();
  std::error_code unknown;
  const auto status = std::filesystem::status(path, unknown);
  if (!path.has_filename() || is_directory(status)) {
    return Failure(Message::words("cannot write '%1': it is a folder; give the path of a file"),
                   {name});
  }
  if (exists(status) && !is_regular_file(status)) {
    return Failure(
        Message::words("cannot write '%1': it is not an ordinary file; choose another name"),
        {name});
  }
  if (exists(status)) {
    return Failure(Message::words("cannot write '%1': %2; choose another name"),
                   {name, error.message()});
  }
  return Failure(Message::words("cannot write '%1': %2; choose a folder that can be written to"),
                 {name, error.message()});
}

}  // namespace

AtomicFile::AtomicFile(const std::filesystem::path& path) : path_(path), file_(path, error_) {
  if (error_) throw cannotWrite(path, error_);
}

void AtomicFile::commit() {
  if (const auto error = file_.commit()) {
    throw Failure(Message::words("cannot write '%1': %2; choose another place"),
                  {path_.string(), error.message()});
  }
}

}  // namespace host
