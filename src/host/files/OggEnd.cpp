#include "host/files/OggEnd.h"

#include <algorithm>
#include <fstream>
#include <string>
#include <string_view>

namespace host {
namespace {

constexpr std::size_t kPageHeader = 27;
constexpr std::size_t kMostSegments = 255;
constexpr std::streamoff kLargestPage = kPageHeader + kMostSegments + kMostSegments * 255;
constexpr std::size_t kFlagsAt = 5;
constexpr std::size_t kSegmentsAt = 26;
constexpr unsigned kEndOfStream = 4;

/// The whole page at the start of the bytes, or nothing.
std::string_view pageAt(std::string_view bytes) {
  const auto byte = [&](std::size_t at) { return static_cast<unsigned char>(bytes[at]); };
  if (bytes.size() < kPageHeader || !bytes.starts_with("OggS")) return {};
  const std::size_t segments = byte(kSegmentsAt);
  std::size_t length = kPageHeader + segments;
  if (bytes.size() < length) return {};
  for (std::size_t i = 0; i < segments; ++i) length += byte(kPageHeader + i);
  return bytes.size() < length ? std::string_view{} : bytes.substr(0, length);
}

}  // namespace

bool endsWithLastOggPage(const std::filesystem::path& path) {
  std::ifstream file(path, std::ios::binary | std::ios::ate);
  const std::streamoff size = file.tellg();
  if (size <= 0) return false;
  // The last page starts in what the last two can be long.
  std::string tail(static_cast<std::size_t>(std::min(size, 2 * kLargestPage)), '\0');
  file.seekg(-static_cast<std::streamoff>(tail.size()), std::ios::end);
  if (!file.read(tail.data(), static_cast<std::streamsize>(tail.size()))) return false;
  const auto last = tail.rfind("OggS");
  if (last == std::string::npos) return false;
  const auto page = pageAt(std::string_view(tail).substr(last));
  return !page.empty() && (static_cast<unsigned char>(page[kFlagsAt]) & kEndOfStream) != 0;
}

}  // namespace host
