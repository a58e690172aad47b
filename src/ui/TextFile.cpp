#include "ui/TextFile.h"

#include <unicode/localpointer.h>
#include <unicode/ucnv.h>
#include <unicode/ucnv_err.h>
#include <unicode/unistr.h>

#include <cstddef>
#include <cstdint>
#include <limits>
#include <optional>
#include <string>
#include <system_error>

#include "ui/AtomicFile.h"

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

bool replaceFile(const std::filesystem::path& file, std::string_view bytes) {
  std::error_code error;
  AtomicFile replacement(file, error);
  return !error && !replacement.write(bytes) && !replacement.commit();
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
