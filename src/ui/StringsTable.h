#pragma once

#include <filesystem>
#include <functional>
#include <map>
#include <stdexcept>
#include <string>
#include <string_view>

#include "ui/Export.h"

namespace ui {

/// Texts by key, both UTF-8.
using StringsTable = std::map<std::string, std::string, std::less<>>;

/// Why a strings table cannot be read; the message starts with the line.
class UI_EXPORT StringsTableError : public std::runtime_error {
 public:
  StringsTableError(std::size_t line, const std::string& fault);
  ~StringsTableError() override;
  /// Line of the fault, counted from 1.
  std::size_t line() const { return line_; }

 private:
  std::size_t line_;
};

/// Reads entries such as `"key" = "text";`, with or without a byte-order mark.
///
/// Keys and texts are quoted, or bare when they consist of letters, digits and "_$.-" only. An
/// entry without a text uses its key as the text. Escapes inside quotes are \" \\ \n \t \r and \U
/// with four hexadecimal digits, two of these in a row for a surrogate pair. Comments are as in
/// C++. Throws `StringsTableError` for anything else, for bytes that are not UTF-8 and for a key
/// that occurs twice.
UI_EXPORT StringsTable parseStringsTable(std::string_view utf8);

/// Reads a file. Throws `std::runtime_error`, naming the file, when it cannot be read or parsed.
UI_EXPORT StringsTable readStringsTable(const std::filesystem::path& file);

}  // namespace ui
