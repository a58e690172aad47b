#pragma once

#include <string>
#include <string_view>

#include "ui/StringsTable.h"

/// The table as a text in the strings format.
std::string asText(const ui::StringsTable& table);

/// What is wrong with the parser's answer for the text, empty when nothing is: whatever the bytes,
/// it has to give a table that can be written and read again, or an error that names one of its
/// lines.
std::string brokenProperty(std::string_view text);
