#pragma once

#include <string>

namespace host {

/// The number with `digits` digits after the point, whatever the locale; "-inf" for minus infinity.
std::string decimal(double value, int digits);
/// The number rounded to `digits` digits after the point.
double rounded(double value, int digits);

}  // namespace host
