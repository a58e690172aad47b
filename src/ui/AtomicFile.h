#pragma once

#include <filesystem>
#include <string_view>
#include <system_error>

#include "ui/Export.h"

namespace ui {

/// A file that appears whole or not at all. What is written goes to a temporary file beside it,
/// which takes the file's name on `commit` and is removed otherwise.
///
/// A new file gets the permissions that the user gives new files. A file that is replaced hands its
/// permissions on, and its owner where the user may do that; until `commit` nobody else can read
/// what is going to replace it. A symbolic link keeps pointing to the file that is written.
///
/// Several may be made at once on different threads; each is used by one thread at a time.
class UI_EXPORT AtomicFile {
 public:
  /// Makes the temporary file. Sets `error` when the name belongs to a folder (`is_a_directory`),
  /// to anything else that is no ordinary file (`not_supported`) or to a file that the user may not
  /// write, and when its folder is missing or may not be written to.
  AtomicFile(const std::filesystem::path& file, std::error_code& error) noexcept;
  AtomicFile(const AtomicFile&) = delete;
  AtomicFile& operator=(const AtomicFile&) = delete;
  ~AtomicFile();

  /// Where to write until `commit`: a file that is empty at first, by its descriptor and by name.
  /// The descriptor is closed by `commit` and by the destructor.
  int descriptor() const { return descriptor_; }
  const std::filesystem::path& temporaryPath() const { return temporary_; }
  /// Writes at the descriptor's position.
  std::error_code write(std::string_view bytes) noexcept;

  /// Gives the file its name. Without an error it is whole and safely on disk; with one the file
  /// that was there is as it was. To be called once.
  std::error_code commit() noexcept;

 private:
  std::error_code begin(const std::filesystem::path& file);
  std::error_code makeTemporary(bool isPrivate);
  std::error_code finish();

  /// Behind all links.
  std::filesystem::path target_;
  std::filesystem::path temporary_;
  int descriptor_ = -1;
};

}  // namespace ui
