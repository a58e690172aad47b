#pragma once

#include <concepts>
#include <functional>
#include <string>
#include <utility>
#include <vector>

namespace host {

/// A line for the user that can still be put into his language: English words with places %1 to %9,
/// and what stands there.
class Message {
 public:
  /// Words that the translators find: to lupdate it is another spelling of `tr`, that gives them
  /// the context host::Message. In a function whose result's type is qualified, lupdate only
  /// recognises `host::Message::words`.
  struct Words {
    const char* english;
  };
  static constexpr Words words(const char* english) { return {english}; }

  Message() = default;
  /// What nobody translates: a name, a number, a library's own reason.
  Message(std::string text) : text_(std::move(text)) {}
  Message(const char* text) : text_(text) {}
  Message(std::integral auto number) : text_(std::to_string(number)) {}
  /// A value may have words of its own.
  Message(Words words, std::vector<Message> values = {})
      : text_(words.english), isWords_(true), values_(std::move(values)) {}

  bool empty() const { return text_.empty(); }
  std::string english() const;
  /// In the words that `translate` has for the English ones.
  std::string translated(const std::function<std::string(const char*)>& translate) const;

 private:
  std::string text_;
  bool isWords_ = false;
  std::vector<Message> values_;
};

}  // namespace host
