#pragma once

#include <concepts>
#include <functional>
#include <string>
#include <utility>
#include <vector>

namespace host {

/// A line for the user that can still be translated: English words with placeholders %1 to %9, and
/// the values that fill them.
class Message {
 public:
  /// Words for the translators. lupdate takes `words` for another spelling of `tr`, with the
  /// context host::Message. In a function whose return type is qualified it only recognises
  /// `host::Message::words`.
  struct Words {
    const char* english;
  };
  static constexpr Words words(const char* english) { return {english}; }

  Message() = default;
  /// Text that is not translated: a name, a number, a library's own reason.
  Message(std::string text) : text_(std::move(text)) {}
  Message(const char* text) : text_(text) {}
  Message(std::integral auto number) : text_(std::to_string(number)) {}
  /// A value may itself be translatable.
  Message(Words words, std::vector<Message> values = {})
      : text_(words.english), isWords_(true), values_(std::move(values)) {}

  bool empty() const { return text_.empty(); }
  std::string english() const;
  /// `translate` gives the translation of English words.
  std::string translated(const std::function<std::string(const char*)>& translate) const;

 private:
  std::string text_;
  bool isWords_ = false;
  std::vector<Message> values_;
};

}  // namespace host
