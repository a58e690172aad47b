#pragma once

#include <filesystem>
#include <string>

namespace host {

/// A file that comes into being whole or not at all: what is written goes to a temporary file
/// beside it, which takes its name on `commit` and vanishes otherwise.
class AtomicFile {
 public:
  /// Makes the temporary file. Throws `Failure` when the folder is missing or cannot be written to,
  /// or when something that is no ordinary, writable file has the name.
  explicit AtomicFile(const std::filesystem::path& path);
  AtomicFile(const AtomicFile&) = delete;
  AtomicFile& operator=(const AtomicFile&) = delete;
  ~AtomicFile();

  const std::filesystem::path& path() const { return path_; }
  /// Where to write until `commit`. The file exists and is empty.
  const std::filesystem::path& temporaryPath() const { return temporary_; }
  /// Gives the file its name. Throws `Failure`.
  void commit();

 private:
  std::filesystem::path path_;
  std::filesystem::path temporary_;
  bool committed_ = false;
};

}  // namespace host
