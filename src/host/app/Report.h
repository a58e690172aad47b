#pragma once

#include "host/Readings.h"
#include "host/app/Audition.h"

namespace host::app {

/// What the unit reads after the run, when nothing renders any more. Throws `Failure`.
Readings readingsAfter(Audition& audition);

/// Ends the run at `seconds` of the file at the latest.
void limitLength(Audition& audition, double seconds);

}  // namespace host::app
