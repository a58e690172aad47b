#pragma once

#include <string>
#include <string_view>

#include "ui/StringsTable.h"

/// The table written in the strings format.
std::string asText(const ui::StringsTable& table);

/// What is wrong with the parser's answer for the text; empty if nothing is. Whatever the bytes,
/// the parser must give a table that can be written and read again, or an error that names one of
/// the text's lines.
std::string brokenProperty(std::string_view text);
