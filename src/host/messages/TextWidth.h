#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace host {

/// Columns that UTF-8 text takes on a terminal.
std::size_t textWidth(std::string_view text);

/// The text with characters that are none, and such as would move the cursor, replaced by "?".
std::string printable(std::string_view text);

/// At most `width` columns of printable text: the beginning and, after an ellipsis, the end.
std::string elidedInTheMiddle(std::string_view text, std::size_t width);

/// A path in at most `width` columns: whole, or its end behind an ellipsis, and where not even the
/// file's name fits, that elided in the middle.
std::string elidedPath(std::string_view path, std::size_t width);

/// Followed by as many blanks as it takes.
std::string padded(std::string text, std::size_t width);

}  // namespace host
