#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace host {

/// Columns that UTF-8 text takes up on a terminal.
std::size_t textWidth(std::string_view text);

/// The text with "?" in place of bytes that are not UTF-8 and of characters that would move the
/// cursor.
std::string printable(std::string_view text);

/// The text, made printable, in at most `width` columns: whole, or its beginning and its end with
/// an ellipsis between them.
std::string elidedInTheMiddle(std::string_view text, std::size_t width);

/// A path in at most `width` columns: whole, or its end after an ellipsis. Where even the file's
/// name is too long, only the name, elided in the middle.
std::string elidedPath(std::string_view path, std::size_t width);

/// The text followed by as many blanks as it takes to fill `width` columns.
std::string padded(std::string text, std::size_t width);

}  // namespace host
