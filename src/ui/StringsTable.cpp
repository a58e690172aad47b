#include "ui/StringsTable.h"

#include <unicode/utf16.h>
#include <unicode/utf8.h>

#include <cstddef>
#include <cstdint>
#include <fstream>
#include <iterator>
#include <system_error>
#include <utility>

namespace ui {

namespace {

bool isWhiteSpace(char c) {
  return c == ' ' || c == '\t' || c == '\n' || c == '\r' || c == '\v' || c == '\f';
}

bool isBare(char c) {
  return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || (c >= '0' && c <= '9') || c == '_' ||
         c == '$' || c == '.' || c == '-';
}

void appendUtf8(std::string& text, UChar32 character) {
  std::uint8_t bytes[U8_MAX_LENGTH];
  std::size_t length = 0;
  U8_APPEND_UNSAFE(bytes, length, character);
  text.append(reinterpret_cast<const char*>(bytes), length);
}

class Parser {
 public:
  explicit Parser(std::string_view text) : text_(text) {
    constexpr std::string_view byteOrderMark = "\xEF\xBB\xBF";
    if (text_.substr(0, byteOrderMark.size()) == byteOrderMark) {
      position_ = byteOrderMark.size();
    }
  }

  StringsTable parse() {
    checkEncoding();
    StringsTable table;
    for (skipBlanks(); !atEnd(); skipBlanks()) {
      const std::size_t line = line_;
      std::string key = token("a key");
      skipBlanks();
      std::string text = key;
      if (peek() == '=') {
        advance();
        skipBlanks();
        text = token("a text");
        skipBlanks();
      }
      expectSemicolon();
      const auto [place, isNew] = table.emplace(std::move(key), std::move(text));
      if (!isNew) {
        throw StringsTableError(line, "the key \"" + place->first + "\" stands twice");
      }
    }
    return table;
  }

 private:
  bool atEnd() const { return position_ >= text_.size(); }
  /// The character that many places ahead; 0 past the end.
  char peek(std::size_t ahead = 0) const {
    return position_ + ahead < text_.size() ? text_[position_ + ahead] : '\0';
  }

  char advance() {
    const char c = text_[position_++];
    // CR LF is one line end.
    if (c == '\n' || (c == '\r' && peek() != '\n')) {
      ++line_;
    }
    return c;
  }

  [[noreturn]] void fail(const std::string& fault) const { throw StringsTableError(line_, fault); }

  void checkEncoding() const {
    std::size_t line = 1;
    for (std::size_t i = position_; i < text_.size();) {
      line += text_[i] == '\n' || (text_[i] == '\r' && text_.substr(i + 1, 1) != "\n") ? 1U : 0U;
      UChar32 character = 0;
      const auto* bytes = reinterpret_cast<const std::uint8_t*>(text_.data());
      // NOLINTNEXTLINE(bugprone-inc-dec-in-conditions): the macro is ICU's.
      U8_NEXT(bytes, i, text_.size(), character);
      if (character < 0) {
        throw StringsTableError(line, "bytes that are not UTF-8");
      }
    }
  }

  void skipBlanks() {
    while (!atEnd()) {
      if (isWhiteSpace(peek())) {
        advance();
      } else if (peek() == '/' && peek(1) == '/') {
        while (!atEnd() && peek() != '\n' && peek() != '\r') {
          advance();
        }
      } else if (peek() == '/' && peek(1) == '*') {
        skipBlockComment();
      } else {
        return;
      }
    }
  }

  void skipBlockComment() {
    const std::size_t line = line_;
    const std::size_t end = text_.find("*/", position_ + 2);
    if (end == std::string_view::npos) {
      throw StringsTableError(line, "a comment without end");
    }
    while (position_ < end + 2) {
      advance();
    }
  }

  void expectSemicolon() {
    if (peek() != ';') {
      fail("a semicolon is missing");
    }
    advance();
  }

  std::string token(const char* what) {
    if (peek() == '"') {
      return quoted();
    }
    std::string text;
    while (isBare(peek())) {
      text += advance();
    }
    if (text.empty()) {
      fail(std::string(what) + " is missing");
    }
    return text;
  }

  std::string quoted() {
    const std::size_t line = line_;
    advance();
    std::string text;
    while (!atEnd()) {
      const char c = advance();
      if (c == '"') {
        return text;
      }
      if (c == '\\') {
        appendEscape(text);
      } else {
        text += c;
      }
    }
    throw StringsTableError(line, "a quotation mark without its partner");
  }

  void appendEscape(std::string& text) {
    switch (peek()) {
      case '"':
      case '\\':
        text += advance();
        return;
      case 'n':
        text += '\n';
        break;
      case 't':
        text += '\t';
        break;
      case 'r':
        text += '\r';
        break;
      case 'U':
        advance();
        appendUtf8(text, escapedCharacter());
        return;
      default:
        fail("an escape that is none of \\\" \\\\ \\n \\t \\r \\U");
    }
    advance();
  }

  UChar32 escapedCharacter() {
    const std::uint32_t unit = fourDigits();
    if (!U16_IS_SURROGATE(unit)) {
      return static_cast<UChar32>(unit);
    }
    if (U16_IS_SURROGATE_LEAD(unit) && peek() == '\\' && peek(1) == 'U') {
      advance();
      advance();
      const std::uint32_t trail = fourDigits();
      if (U16_IS_TRAIL(trail)) {
        return U16_GET_SUPPLEMENTARY(static_cast<UChar32>(unit), static_cast<UChar32>(trail));
      }
    }
    fail("half a surrogate pair");
  }

  std::uint32_t fourDigits() {
    std::uint32_t value = 0;
    for (int digit = 0; digit < 4; ++digit) {
      const char c = peek();
      if (c >= '0' && c <= '9') {
        value = value * 16 + static_cast<std::uint32_t>(c - '0');
      } else if (c >= 'a' && c <= 'f') {
        value = value * 16 + static_cast<std::uint32_t>(c - 'a') + 10;
      } else if (c >= 'A' && c <= 'F') {
        value = value * 16 + static_cast<std::uint32_t>(c - 'A') + 10;
      } else {
        fail("\\U needs four hexadecimal digits");
      }
      advance();
    }
    return value;
  }

  std::string_view text_;
  std::size_t position_ = 0;
  std::size_t line_ = 1;
};

}  // namespace

StringsTableError::StringsTableError(std::size_t line, const std::string& fault)
    : std::runtime_error("line " + std::to_string(line) + ": " + fault), line_(line) {}

StringsTableError::~StringsTableError() = default;

StringsTable parseStringsTable(std::string_view utf8) {
  return Parser(utf8).parse();
}

StringsTable readStringsTable(const std::filesystem::path& file) {
  std::error_code error;
  if (std::filesystem::is_directory(file, error)) {
    throw std::runtime_error(file.string() + ": is a folder");
  }
  std::ifstream stream(file, std::ios::binary);
  const std::string text{std::istreambuf_iterator<char>(stream), std::istreambuf_iterator<char>()};
  if (!stream.is_open() || stream.bad()) {
    throw std::runtime_error(file.string() + ": cannot be read");
  }
  try {
    return parseStringsTable(text);
  } catch (const StringsTableError& fault) {
    throw std::runtime_error(file.string() + ": " + fault.what());
  }
}

}  // namespace ui
