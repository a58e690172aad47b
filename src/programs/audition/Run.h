#pragma once

#include "programs/audition/CommandLine.h"
#include "programs/audition/OutputFiles.h"
#include "programs/audition/TerminationSignals.h"

namespace host::audition {

/// Runs the program with its window until that is closed. Returns the exit status; throws
/// `Failure`.
int runWithWindow(const AuditionOptions& options, OutputFiles files, TerminationSignals& signals);

/// Plays the file off screen as fast as possible. Returns the exit status; throws `Failure`.
int runHeadless(const AuditionOptions& options, OutputFiles files, TerminationSignals& signals);

}  // namespace host::audition
