#pragma once

namespace host::measure {

/// From now on SIGINT, SIGTERM and SIGHUP do not end the process, and writing into a closed
/// pipe, or more than the user may, is an error like any other.
void catchInterruptions();

/// The signal that was caught, or 0. Any thread.
int interruption();

/// Thrown where work stops because the user or the system has asked for it.
struct Interrupted {};

/// Throws `Interrupted` once a signal has been caught.
void stopIfInterrupted();

}  // namespace host::measure
