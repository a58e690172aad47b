#include "ui/AtomicFile.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <charconv>
#include <cstdint>
#include <cstdio>
#include <random>
#include <string>
#include <utility>

namespace ui {

namespace {

constexpr mode_t kPermissions = 0777;

std::error_code lastError() {
  return {errno, std::generic_category()};
}

std::filesystem::path folderOf(const std::filesystem::path& file) {
  return file.has_parent_path() ? file.parent_path() : ".";
}

/// Follows links to where they end, whether or not anything is there.
std::error_code followLinks(std::filesystem::path& file) {
  constexpr int manyLinks = 40;
  std::error_code error;
  for (int link = 0; link < manyLinks; ++link) {
    // What cannot even be looked at is found out when the file is made.
    if (!std::filesystem::is_symlink(file, error)) return {};
    const auto next = std::filesystem::read_symlink(file, error);
    if (error) return error;
    file = file.parent_path() / next;
  }
  return std::make_error_code(std::errc::too_many_symbolic_link_levels);
}

std::error_code replaceable(const std::filesystem::path& file, const struct stat& status) {
  if (S_ISDIR(status.st_mode)) return std::make_error_code(std::errc::is_a_directory);
  if (!S_ISREG(status.st_mode)) return std::make_error_code(std::errc::not_supported);
  // Renaming would ask the folder alone.
  if (::faccessat(AT_FDCWD, file.c_str(), W_OK, AT_EACCESS) != 0) return lastError();
  return {};
}

/// "mix.wav.part-0f3b…" beside "mix.wav".
std::filesystem::path temporaryName(const std::filesystem::path& target) {
  constexpr std::size_t longestName = 255;
  std::random_device random;
  const auto number = std::uint64_t{random()} << 32U | random();
  std::array<char, 16> digits{};
  auto* const end = std::to_chars(digits.data(), digits.data() + digits.size(), number, 16).ptr;
  const auto suffix = ".part-" + std::string(digits.data(), end);
  auto name = target.filename().native();
  if (name.size() + suffix.size() > longestName) name.clear();
  return folderOf(target) / (name + suffix);
}

/// Only the superuser may give a file away; what anybody else writes becomes their own.
std::error_code takeAfter(const struct stat& other, int descriptor) {
  [[maybe_unused]] const int ignored = ::fchown(descriptor, other.st_uid, other.st_gid);
  return ::fchmod(descriptor, other.st_mode & kPermissions) == 0 ? std::error_code() : lastError();
}

/// Makes the renaming itself last. That some file systems cannot do it is no failure.
void syncFolder(const std::filesystem::path& folder) {
  const int descriptor = ::open(folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
  if (descriptor < 0) return;
  ::fsync(descriptor);
  ::close(descriptor);
}

/// What it throws, which is want of memory or of random numbers, becomes an error too.
template <class Work>
std::error_code withoutThrowing(Work work) noexcept {
  try {
    return work();
  } catch (const std::system_error& error) {
    return error.code();
  } catch (...) {
    return std::make_error_code(std::errc::not_enough_memory);
  }
}

}  // namespace

AtomicFile::AtomicFile(const std::filesystem::path& file, std::error_code& error) noexcept {
  error = withoutThrowing([&] { return begin(file); });
}

AtomicFile::~AtomicFile() {
  if (descriptor_ < 0) return;
  ::close(descriptor_);
  ::unlink(temporary_.c_str());
}

std::error_code AtomicFile::begin(const std::filesystem::path& file) {
  target_ = file;
  if (const auto error = followLinks(target_)) return error;
  if (!target_.has_filename()) return std::make_error_code(std::errc::is_a_directory);
  struct stat existing = {};
  const bool exists = ::stat(target_.c_str(), &existing) == 0;
  if (exists) {
    if (const auto error = replaceable(target_, existing)) return error;
  } else if (errno != ENOENT) {
    return lastError();
  }
  return makeTemporary(exists);
}

std::error_code AtomicFile::makeTemporary(bool isPrivate) {
  constexpr int manyNames = 100;
  for (int name = 0; name < manyNames; ++name) {
    temporary_ = temporaryName(target_);
    descriptor_ = ::open(temporary_.c_str(), O_RDWR | O_CREAT | O_EXCL | O_CLOEXEC | O_NOFOLLOW,
                         isPrivate ? 0600 : 0666);
    if (descriptor_ >= 0) return {};
    if (errno != EEXIST) break;
  }
  return lastError();
}

std::error_code AtomicFile::write(std::string_view bytes) noexcept {
  while (!bytes.empty()) {
    const ssize_t written = ::write(descriptor_, bytes.data(), bytes.size());
    if (written >= 0) {
      bytes.remove_prefix(static_cast<std::size_t>(written));
    } else if (errno != EINTR) {
      return lastError();
    }
  }
  return {};
}

std::error_code AtomicFile::commit() noexcept {
  if (descriptor_ < 0) return std::make_error_code(std::errc::bad_file_descriptor);
  const auto error = withoutThrowing([&] { return finish(); });
  if (error) return error;
  // The file is no temporary one any more.
  ::close(std::exchange(descriptor_, -1));
  return {};
}

std::error_code AtomicFile::finish() {
  struct stat existing = {};
  if (::stat(target_.c_str(), &existing) == 0) {
    if (const auto error = takeAfter(existing, descriptor_)) return error;
  }
  if (::fsync(descriptor_) != 0) return lastError();
  const auto folder = folderOf(target_);
  if (std::rename(temporary_.c_str(), target_.c_str()) != 0) return lastError();
  syncFolder(folder);
  return {};
}

}  // namespace ui
