#include "ui/TextFile.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unicode/localpointer.h>
#include <unicode/ucnv.h>
#include <unicode/ucnv_err.h>
#include <unicode/unistr.h>
#include <unistd.h>

#include <cerrno>
#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <limits>
#include <optional>
#include <random>
#include <string>
#include <utility>

namespace ui {

namespace {

/// Leaves the error in place. The converter's own "stop" lets invisible characters drop out
/// silently.
extern "C" void refuse(const void*, UConverterFromUnicodeArgs*, const UChar*, int32_t, UChar32,
                       UConverterCallbackReason, UErrorCode*) {}

std::optional<std::string> toMacRoman(std::string_view utf8) {
  if (utf8.size() > static_cast<std::size_t>(std::numeric_limits<std::int32_t>::max())) {
    return std::nullopt;
  }
  UErrorCode status = U_ZERO_ERROR;
  const icu::LocalUConverterPointer converter(ucnv_open("macintosh", &status));
  ucnv_setFromUCallBack(converter.getAlias(), refuse, nullptr, nullptr, nullptr, &status);
  if (U_FAILURE(status)) {
    return std::nullopt;
  }
  ucnv_setFallback(converter.getAlias(), false);
  // Bytes that are not UTF-8 become U+FFFD here, which Mac OS Roman lacks.
  const icu::UnicodeString text = icu::UnicodeString::fromUTF8(
      icu::StringPiece(utf8.data(), static_cast<std::int32_t>(utf8.size())));
  // One byte for each character at most, and the end mark.
  std::string bytes(static_cast<std::size_t>(text.length()) + 1, '\0');
  const std::int32_t length =
      ucnv_fromUChars(converter.getAlias(), bytes.data(), static_cast<std::int32_t>(bytes.size()),
                      text.getBuffer(), text.length(), &status);
  if (U_FAILURE(status)) {
    return std::nullopt;
  }
  bytes.resize(static_cast<std::size_t>(length));
  return bytes;
}

/// A file that is removed again unless it is renamed to its final place.
class TemporaryFile {
 public:
  explicit TemporaryFile(const std::filesystem::path& folder) {
    std::random_device random;
    constexpr int manyNames = 100;
    for (int name = 0; name < manyNames && descriptor_ < 0; ++name) {
      path_ = folder / (".writing-" + std::to_string(random()));
      descriptor_ = ::open(path_.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, 0666);
      if (descriptor_ < 0 && errno != EEXIST) {
        return;
      }
    }
    isOurs_ = isOpen();
  }
  TemporaryFile(const TemporaryFile&) = delete;
  TemporaryFile& operator=(const TemporaryFile&) = delete;
  ~TemporaryFile() {
    close();
    if (isOurs_) {
      ::unlink(path_.c_str());
    }
  }

  bool isOpen() const { return descriptor_ >= 0; }

  bool write(std::string_view bytes) const {
    while (!bytes.empty()) {
      const ssize_t written = ::write(descriptor_, bytes.data(), bytes.size());
      if (written >= 0) {
        bytes.remove_prefix(static_cast<std::size_t>(written));
      } else if (errno != EINTR) {
        return false;
      }
    }
    return true;
  }

  bool takePermissionsOf(const struct stat& other) const {
    // Only the superuser may give a file away; what anybody else writes becomes his own.
    [[maybe_unused]] const int result = ::fchown(descriptor_, other.st_uid, other.st_gid);
    return ::fchmod(descriptor_, other.st_mode & 0777) == 0;
  }

  bool moveTo(const std::filesystem::path& target) {
    if (::fsync(descriptor_) != 0 || !close() || std::rename(path_.c_str(), target.c_str()) != 0) {
      return false;
    }
    isOurs_ = false;
    return true;
  }

 private:
  bool close() { return descriptor_ < 0 || ::close(std::exchange(descriptor_, -1)) == 0; }

  std::filesystem::path path_;
  int descriptor_ = -1;
  bool isOurs_ = false;
};

/// Where the links end, whether or not anything is there; nothing when they run in a circle.
std::optional<std::filesystem::path> withoutLinks(std::filesystem::path file) {
  constexpr int manyLinks = 40;
  for (int link = 0; link < manyLinks; ++link) {
    if (!std::filesystem::is_symlink(file)) {
      return file;
    }
    file = file.parent_path() / std::filesystem::read_symlink(file);
  }
  return std::nullopt;
}

/// Makes the renaming itself last. That it cannot on some file systems is no failure.
void syncFolder(const std::filesystem::path& folder) {
  const int descriptor = ::open(folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
  if (descriptor >= 0) {
    ::fsync(descriptor);
    ::close(descriptor);
  }
}

bool replaceFile(const std::filesystem::path& file, std::string_view bytes) {
  const std::optional<std::filesystem::path> target = withoutLinks(file);
  if (!target || !target->has_filename()) {
    return false;
  }
  struct stat existing = {};
  const bool exists = ::stat(target->c_str(), &existing) == 0;
  if (exists && (!S_ISREG(existing.st_mode) ||
                 ::faccessat(AT_FDCWD, target->c_str(), W_OK, AT_EACCESS) != 0)) {
    return false;
  }
  const std::filesystem::path folder = target->has_parent_path() ? target->parent_path() : ".";
  TemporaryFile temporary(folder);
  if (!temporary.isOpen() || !temporary.write(bytes) ||
      (exists && !temporary.takePermissionsOf(existing)) || !temporary.moveTo(*target)) {
    return false;
  }
  syncFolder(folder);
  return true;
}

}  // namespace

bool writeMacRoman(const std::filesystem::path& file, std::string_view utf8) noexcept {
  try {
    const std::optional<std::string> bytes = toMacRoman(utf8);
    return bytes && replaceFile(file, *bytes);
  } catch (...) {
    return false;
  }
}

}  // namespace ui
