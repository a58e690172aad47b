#pragma once

#include "programs/measure/Options.h"

namespace host::measure {

/// Measures all that the options ask for, tells it, and gives the exit status. Throws `Failure`
/// where there is no use in going on.
int measureAll(const Options& options);

}  // namespace host::measure
