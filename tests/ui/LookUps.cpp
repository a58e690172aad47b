#include "ui/LookUps.h"

#include <algorithm>
#include <array>
#include <cctype>
#include <iterator>
#include <optional>
#include <utility>

namespace {

constexpr std::array<std::string_view, 4> kCalls = {"localizedString", "localized", "text",
                                                    "score"};
constexpr std::array<std::string_view, 5> kCaptionProperties = {"text", "title", "windowTitle",
                                                                "toolTip", "format"};
constexpr std::array<std::pair<std::string_view, char>, 6> kEntities = {{{"&amp;", '&'},
                                                                         {"&lt;", '<'},
                                                                         {"&gt;", '>'},
                                                                         {"&quot;", '"'},
                                                                         {"&apos;", '\''},
                                                                         {"&#10;", '\n'}}};

bool contains(const auto& names, std::string_view name) {
  return std::find(names.begin(), names.end(), name) != names.end();
}

/// A text without a word, such as a figure, a key or a bare placeholder, reads the same everywhere.
bool hasWord(std::string_view text) {
  const auto areLetters = [](char left, char right) {
    return std::isalpha(static_cast<unsigned char>(left)) != 0 &&
           std::isalpha(static_cast<unsigned char>(right)) != 0;
  };
  return std::adjacent_find(text.begin(), text.end(), areLetters) != text.end();
}

/// What is between two marks after `place`, which moves past the second one.
std::optional<std::string_view> between(std::string_view text, std::size_t& place,
                                        std::string_view opening, std::string_view closing) {
  const std::size_t start = text.find(opening, place);
  if (start == std::string_view::npos) {
    return std::nullopt;
  }
  const std::size_t end = text.find(closing, start + opening.size());
  if (end == std::string_view::npos) {
    return std::nullopt;
  }
  place = end + closing.size();
  return text.substr(start + opening.size(), end - start - opening.size());
}

/// Reads a C++ text in quotes; `place` moves from its opening quote past its closing one.
std::string readQuotedText(std::string_view source, std::size_t& place) {
  std::string text;
  for (++place; place < source.size() && source[place] != '"'; ++place) {
    if (source[place] == '\\' && place + 1 < source.size()) {
      ++place;
      text += source[place] == 'n' ? '\n' : source[place];
    } else {
      text += source[place];
    }
  }
  place = std::min(place + 1, source.size());
  return text;
}

/// The texts of the call whose parenthesis has just been opened. Adjacent literals are one text.
std::set<std::string> textsOfCall(std::string_view arguments) {
  std::set<std::string> texts;
  std::optional<std::string> text;
  int depth = 1;
  for (std::size_t i = 0; i < arguments.size() && depth > 0;) {
    const char c = arguments[i];
    if (c == '"') {
      text = text.value_or("") + readQuotedText(arguments, i);
      continue;
    }
    if (text && std::isspace(static_cast<unsigned char>(c)) == 0) {
      texts.insert(*std::exchange(text, std::nullopt));
    }
    depth += c == '(' ? 1 : c == ')' ? -1 : 0;
    ++i;
  }
  return texts;
}

std::string_view nameBefore(std::string_view source, std::size_t parenthesis) {
  std::size_t start = parenthesis;
  while (start > 0 && (std::isalnum(static_cast<unsigned char>(source[start - 1])) != 0 ||
                       source[start - 1] == '_')) {
    --start;
  }
  return source.substr(start, parenthesis - start);
}

std::string withoutEntities(std::string_view escaped) {
  std::string text;
  while (!escaped.empty()) {
    const auto* const entity =
        std::find_if(kEntities.begin(), kEntities.end(), [escaped](const auto& candidate) {
          return escaped.substr(0, candidate.first.size()) == candidate.first;
        });
    const bool isEntity = entity != kEntities.end();
    text += isEntity ? entity->second : escaped.front();
    escaped.remove_prefix(isEntity ? entity->first.size() : 1);
  }
  return text;
}

/// The value of a text property; empty for a property of any other kind.
std::string valueOf(std::string_view property) {
  std::size_t place = property.find("<string");
  if (place == std::string_view::npos) {
    return {};
  }
  const auto value = between(property, place, ">", "</string>");
  return value ? withoutEntities(*value) : std::string();
}

}  // namespace

std::set<std::string> lookedUpKeys(std::string_view source) {
  std::set<std::string> keys;
  for (std::size_t parenthesis = source.find('('); parenthesis != std::string_view::npos;
       parenthesis = source.find('(', parenthesis + 1)) {
    if (contains(kCalls, nameBefore(source, parenthesis))) {
      const std::set<std::string> texts = textsOfCall(source.substr(parenthesis + 1));
      std::copy_if(texts.begin(), texts.end(), std::inserter(keys, keys.end()), hasWord);
    }
  }
  // The table is no key.
  keys.erase("AUDravoAACStrings");
  return keys;
}

std::set<std::string> captions(std::string_view interfaceFile) {
  std::set<std::string> texts;
  const auto insert = [&texts](const std::string& text) {
    if (hasWord(text)) {
      texts.insert(text);
    }
  };
  for (const auto& [opening, closing] : {std::pair("<property name=\"", "</property>"),
                                         std::pair("<attribute name=\"", "</attribute>")}) {
    std::size_t place = 0;
    while (const auto property = between(interfaceFile, place, opening, closing)) {
      const std::string_view name = property->substr(0, property->find('"'));
      std::string value = valueOf(*property);
      if (contains(kCaptionProperties, name)) {
        insert(value);
      } else if (name == "accessibleName") {
        constexpr std::string_view separator = ", ";
        for (std::size_t end = value.find(separator); end != std::string::npos;
             end = value.find(separator)) {
          insert(value.substr(0, end));
          value.erase(0, end + separator.size());
        }
        insert(value);
      }
    }
  }
  return texts;
}
