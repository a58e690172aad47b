#include "host/messages/Message.h"

#include <cstddef>

namespace host {
namespace {

/// Fills the placeholders. One that occurs inside a value is left alone.
std::string filled(const std::string& words, const std::vector<std::string>& values) {
  std::string text;
  for (std::size_t i = 0; i < words.size(); ++i) {
    const char digit = words[i] == '%' && i + 1 < words.size() ? words[i + 1] : '0';
    const auto place = static_cast<std::size_t>(digit - '0');
    if (digit < '1' || digit > '9' || place > values.size()) {
      text += words[i];
      continue;
    }
    text += values[place - 1];
    ++i;
  }
  return text;
}

}  // namespace

std::string Message::english() const {
  return translated([](const char* english) { return std::string(english); });
}

std::string Message::translated(const std::function<std::string(const char*)>& translate) const {
  if (!isWords_) return text_;
  std::vector<std::string> values;
  values.reserve(values_.size());
  for (const auto& value : values_) values.push_back(value.translated(translate));
  return filled(translate(text_.c_str()), values);
}

}  // namespace host
