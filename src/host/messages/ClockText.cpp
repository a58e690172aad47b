#include "host/messages/ClockText.h"

namespace host {
namespace {

std::string zeroPadded(std::int64_t number, std::size_t digits) {
  const auto text = std::to_string(number);
  return std::string(text.size() < digits ? digits - text.size() : 0, '0').append(text);
}

}  // namespace

std::string clockText(std::int64_t milliseconds, int digits, std::string_view decimalPoint) {
  const auto seconds = milliseconds / 1000;
  const auto minutes = seconds / 60;
  std::string text;
  if (minutes >= 60) text.append(std::to_string(minutes / 60)).append(":");
  text.append(zeroPadded(minutes % 60, minutes >= 60 ? 2 : 1));
  text.append(":").append(zeroPadded(seconds % 60, 2));
  if (digits == 0) return text;
  const auto fraction = zeroPadded(milliseconds % 1000, 3);
  return text.append(decimalPoint).append(fraction, 0, static_cast<std::size_t>(digits));
}

}  // namespace host
