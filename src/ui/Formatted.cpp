#include <algorithm>
#include <cstddef>
#include <optional>

#include "ui/Bundle.h"

namespace ui {

namespace {

struct Placeholder {
  std::size_t length;
  /// Counted from 0; none for "%@", which takes the next argument.
  std::optional<std::size_t> argument;
};

/// The placeholder at the start of the text, if there is one.
std::optional<Placeholder> placeholderAt(std::string_view text) {
  if (text.substr(0, 2) == "%@") {
    return Placeholder{2, std::nullopt};
  }
  constexpr std::size_t manyArguments = 1000;
  std::size_t place = 0;
  std::size_t length = 1;
  while (length < text.size() && text[length] >= '0' && text[length] <= '9') {
    place = std::min(place * 10 + static_cast<std::size_t>(text[length] - '0'), manyArguments);
    ++length;
  }
  if (place == 0 || text.substr(length, 2) != "$@") {
    return std::nullopt;
  }
  return Placeholder{length + 2, place - 1};
}

}  // namespace

std::string formatted(std::string_view format, const std::vector<std::string>& arguments) {
  std::string text;
  std::size_t next = 0;
  while (!format.empty()) {
    const std::size_t plain = std::min(format.find('%'), format.size());
    text += format.substr(0, plain);
    format.remove_prefix(plain);
    if (format.empty()) {
      break;
    }
    const std::optional<Placeholder> placeholder = placeholderAt(format);
    if (placeholder) {
      const std::size_t argument = placeholder->argument ? *placeholder->argument : next++;
      text += argument < arguments.size() ? std::string_view(arguments[argument])
                                          : format.substr(0, placeholder->length);
      format.remove_prefix(placeholder->length);
    } else {
      text += '%';
      format.remove_prefix(format.substr(0, 2) == "%%" ? 2 : 1);
    }
  }
  return text;
}

}  // namespace ui
