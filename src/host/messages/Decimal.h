#pragma once

#include <string>

namespace host {

/// The number with `digits` decimals and a decimal point, whatever the locale; "-inf" for minus
/// infinity.
std::string decimal(double value, int digits);
/// The number rounded to `digits` decimals.
double rounded(double value, int digits);

}  // namespace host
