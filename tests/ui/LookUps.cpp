#include "ui/LookUps.h"

#include <array>
#include <iterator>
#include <regex>
#include <utility>

namespace {

/// Where the text in quotes that begins at `place` ends, behind its closing quote.
std::size_t endOfQuoted(std::string_view source, std::size_t place) {
  for (++place; place < source.size() && source[place] != '"'; ++place) {
    if (source[place] == '\\') {
      ++place;
    }
  }
  return place < source.size() ? place + 1 : source.size();
}

std::string unescaped(std::string_view quoted) {
  std::string text;
  for (std::size_t i = 0; i < quoted.size(); ++i) {
    if (quoted[i] == '\\' && i + 1 < quoted.size()) {
      ++i;
      text += quoted[i] == 'n' ? '\n' : quoted[i];
    } else {
      text += quoted[i];
    }
  }
  return text;
}

/// The texts of one call's arguments; neighbours without anything between them are one text.
std::set<std::string> textsOfCall(std::string_view arguments) {
  std::set<std::string> texts;
  std::string text;
  bool isOpen = false;
  int depth = 1;
  for (std::size_t i = 0; i < arguments.size() && depth > 0;) {
    const char c = arguments[i];
    if (c == '"') {
      const std::size_t end = endOfQuoted(arguments, i);
      text += unescaped(arguments.substr(i + 1, end - i - 2));
      isOpen = true;
      i = end;
      continue;
    }
    if (c != ' ' && c != '\n' && isOpen) {
      texts.insert(std::exchange(text, {}));
      isOpen = false;
    }
    depth += c == '(' ? 1 : c == ')' ? -1 : 0;
    ++i;
  }
  return texts;
}

std::string withoutEntities(std::string text) {
  constexpr std::array<std::pair<const char*, const char*>, 6> entities = {{{"&lt;", "<"},
                                                                            {"&gt;", ">"},
                                                                            {"&quot;", "\""},
                                                                            {"&apos;", "'"},
                                                                            {"&#10;", "\n"},
                                                                            {"&amp;", "&"}}};
  for (const auto& [entity, character] : entities) {
    text = std::regex_replace(text, std::regex(entity), character);
  }
  return text;
}

}  // namespace

std::set<std::string> lookedUpKeys(std::string_view source) {
  static const std::regex call(R"(\b(localizedString|localized|text|score)\()");
  std::set<std::string> keys;
  const std::string copy(source);
  for (std::sregex_iterator found(copy.begin(), copy.end(), call), end; found != end; ++found) {
    const auto behind = static_cast<std::size_t>(found->position() + found->length());
    // The table is no key.
    for (const std::string& key : textsOfCall(source.substr(behind))) {
      if (key != "AUDravoAACStrings") {
        keys.insert(key);
      }
    }
  }
  return keys;
}

std::set<std::string> captions(std::string_view interfaceFile) {
  static const std::regex caption(
      R"re(<(?:property|attribute) name="(?:text|title|windowTitle|toolTip|statusTip|whatsThis|placeholderText|accessibleName|accessibleDescription|label)"[^>]*>\s*<string([^>]*)>([^<]*)</string>)re");
  std::set<std::string> texts;
  const std::string copy(interfaceFile);
  for (std::sregex_iterator found(copy.begin(), copy.end(), caption), end; found != end; ++found) {
    if (found->str(1).find("notr=\"true\"") == std::string::npos && found->length(2) > 0) {
      texts.insert(withoutEntities(found->str(2)));
    }
  }
  return texts;
}
