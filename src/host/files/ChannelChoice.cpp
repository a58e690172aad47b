#include "host/files/ChannelChoice.h"

#include <charconv>
#include <string>

namespace host {
namespace {

[[noreturn]] void refuse(std::string_view text) {
  throw UsageError("bad --channels '" + std::string(text) +
                   "': give two numbers from 1 on such as 1,2, or one for mono");
}

std::uint32_t number(std::string_view field, std::string_view text) {
  std::uint32_t value = 0;
  const auto* const end = field.data() + field.size();
  const auto [rest, error] = std::from_chars(field.data(), end, value);
  if (error != std::errc() || rest != end || value == 0) refuse(text);
  return value;
}

}  // namespace

ChannelChoice parsedChannelChoice(std::string_view text) {
  const auto comma = text.find(',');
  ChannelChoice choice = {number(text.substr(0, comma), text)};
  if (comma != std::string_view::npos) choice.push_back(number(text.substr(comma + 1), text));
  return choice;
}

}  // namespace host
