#include "host/messages/Decimal.h"

#include <array>
#include <charconv>
#include <cmath>

namespace host {

std::string decimal(double value, int digits) {
  std::array<char, 400> text{};
  const auto end = std::to_chars(text.data(), text.data() + text.size(), rounded(value, digits),
                                 std::chars_format::fixed, digits);
  return {text.data(), end.ptr};
}

double rounded(double value, int digits) {
  const auto scale = std::pow(10.0, digits);
  // Adding zero turns a negative zero into a plain one.
  return std::round(value * scale) / scale + 0.0;
}

}  // namespace host
