#pragma once

#include "host/messages/Terminal.h"
#include "programs/measure/Options.h"

namespace host::measure {

/// Measures everything that the options ask for, prints the results and gives the exit status.
/// Throws `Failure` where there is no point in going on.
int measureAll(const Options& options, Terminal& terminal);

}  // namespace host::measure
