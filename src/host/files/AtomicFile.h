#pragma once

#include <filesystem>

#include "ui/AtomicFile.h"

namespace host {

/// `ui::AtomicFile` for the programs: what cannot be written is a `Failure`, in words for the user.
class AtomicFile {
 public:
  /// Makes the temporary file. Throws `Failure` when the folder is missing or cannot be written to,
  /// or when something that is no ordinary, writable file has the name.
  explicit AtomicFile(const std::filesystem::path& path);

  /// As it was given.
  const std::filesystem::path& path() const { return path_; }
  /// Where to write until `commit`: a file that is empty at first, by name and by its descriptor.
  const std::filesystem::path& temporaryPath() const { return file_.temporaryPath(); }
  int descriptor() const { return file_.descriptor(); }
  /// Gives the file its name, safely on disk. Throws `Failure`.
  void commit();

 private:
  std::filesystem::path path_;
  std::error_code error_;
  ui::AtomicFile file_;
};

}  // namespace host
