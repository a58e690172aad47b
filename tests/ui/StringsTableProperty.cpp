#include "ui/StringsTableProperty.h"

#include <algorithm>

namespace {

std::string quoted(const std::string& text) {
  std::string result = "\"";
  for (const char c : text) {
    if (c == '"' || c == '\\') {
      result += '\\';
    }
    result += c;
  }
  return result + '"';
}

}  // namespace

std::string asText(const ui::StringsTable& table) {
  std::string text;
  for (const auto& [key, value] : table) {
    text += quoted(key) + " = " + quoted(value) + ";\n";
  }
  return text;
}

std::string brokenProperty(std::string_view text) {
  try {
    const ui::StringsTable table = ui::parseStringsTable(text);
    if (ui::parseStringsTable(asText(table)) != table) {
      return "the table changes when it is written and read again";
    }
  } catch (const ui::StringsTableError& error) {
    const auto isLineEnd = [](char c) { return c == '\n' || c == '\r'; };
    const auto lines =
        static_cast<std::size_t>(std::count_if(text.begin(), text.end(), isLineEnd)) + 1;
    if (error.line() < 1 || error.line() > lines) {
      return std::string("no line of the text: ") + error.what();
    }
  }
  return {};
}
