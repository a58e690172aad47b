#include "host/messages/TextWidth.h"

#include <locale.h>
#include <wchar.h>

#include <vector>

namespace host {
namespace {

constexpr std::string_view kEllipsis = "…";

struct Character {
  std::string bytes;
  std::size_t width;
};

/// Classifies characters alike whatever the user's locale, so that a table always looks the same.
class CharacterTypes {
 public:
  CharacterTypes() : locale_(::newlocale(LC_CTYPE_MASK, "C.UTF-8", nullptr)) {
    if (locale_ != nullptr) before_ = ::uselocale(locale_);
  }
  CharacterTypes(const CharacterTypes&) = delete;
  CharacterTypes& operator=(const CharacterTypes&) = delete;
  ~CharacterTypes() {
    if (locale_ == nullptr) return;
    ::uselocale(before_);
    ::freelocale(locale_);
  }

 private:
  locale_t locale_;
  locale_t before_ = nullptr;
};

std::vector<Character> characters(std::string_view text) {
  const CharacterTypes types;
  std::vector<Character> result;
  mbstate_t state{};
  while (!text.empty()) {
    wchar_t character = 0;
    auto length = ::mbrtowc(&character, text.data(), text.size(), &state);
    const bool isCharacter = length > 0 && length <= text.size();
    const int width = isCharacter ? ::wcwidth(character) : -1;
    if (!isCharacter) {
      length = 1;
      state = {};
    }
    if (width < 0) {
      result.push_back({"?", 1});
    } else {
      result.push_back({std::string(text.substr(0, length)), static_cast<std::size_t>(width)});
    }
    text.remove_prefix(length);
  }
  return result;
}

std::size_t widthOf(const std::vector<Character>& characters) {
  std::size_t width = 0;
  for (const auto& character : characters) width += character.width;
  return width;
}

std::string joined(const std::vector<Character>& characters) {
  std::string text;
  for (const auto& character : characters) text += character.bytes;
  return text;
}

/// As many characters from the end as fit.
std::string endOf(const std::vector<Character>& characters, std::size_t width) {
  auto begin = characters.end();
  std::size_t taken = 0;
  while (begin != characters.begin() && taken + std::prev(begin)->width <= width) {
    taken += (--begin)->width;
  }
  return joined({begin, characters.end()});
}

std::string beginningOf(const std::vector<Character>& characters, std::size_t width) {
  std::string text;
  std::size_t taken = 0;
  for (const auto& character : characters) {
    taken += character.width;
    if (taken > width) break;
    text += character.bytes;
  }
  return text;
}

}  // namespace

std::size_t textWidth(std::string_view text) {
  return widthOf(characters(text));
}

std::string printable(std::string_view text) {
  return joined(characters(text));
}

std::string elidedInTheMiddle(std::string_view text, std::size_t width) {
  const auto all = characters(text);
  if (widthOf(all) <= width) return joined(all);
  if (width == 0) return {};
  const auto end = (width - 1) / 2;
  return beginningOf(all, width - 1 - end) + std::string(kEllipsis) + endOf(all, end);
}

std::string elidedPath(std::string_view path, std::size_t width) {
  const auto all = characters(path);
  if (widthOf(all) <= width) return joined(all);
  const auto slash = path.find_last_of('/');
  const auto name = slash == std::string_view::npos ? path : path.substr(slash + 1);
  if (width == 0 || textWidth(name) + 1 > width) return elidedInTheMiddle(name, width);
  return std::string(kEllipsis) + endOf(all, width - 1);
}

std::string padded(std::string text, std::size_t width) {
  const auto taken = textWidth(text);
  if (taken < width) text.append(width - taken, ' ');
  return text;
}

}  // namespace host
