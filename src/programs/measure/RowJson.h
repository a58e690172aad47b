#pragma once

#include <string>

#include "programs/measure/Job.h"

namespace host::measure {

/// The row as one JSON object on one line, without a line end: the readings, and the trim if there
/// is one.
std::string asJson(const Row& row);

}  // namespace host::measure
