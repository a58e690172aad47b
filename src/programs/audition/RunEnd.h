#pragma once

#include "host/unit/Readings.h"
#include "programs/audition/Audition.h"

namespace host::audition {

/// What the unit has metered by the end of the run. Call it once nothing renders any more. Throws
/// `Failure`.
Readings readingsAfter(Audition& audition);

/// Ends the run at `seconds` of the file at the latest.
void limitLength(Audition& audition, double seconds);

}  // namespace host::audition
