#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace host {

/// A time as a clock shows it, whatever the locale: minutes and seconds, "3:07", and hours where
/// there are any, "1:02:45". `digits`, from 0 to 3, of the fraction of a second follow behind
/// `decimalPoint`; what is less is cut off. `milliseconds` is not negative.
std::string clockText(std::int64_t milliseconds, int digits, std::string_view decimalPoint = ".");

}  // namespace host
