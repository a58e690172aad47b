#pragma once

namespace host::measure {

/// From now on SIGINT, SIGTERM and SIGHUP end nothing by themselves, and writing into a closed
/// pipe, or more than the user may, is an error like any other.
void catchInterruptions();

/// The signal that came, or 0. Any thread.
int interruption();

/// Thrown where work stops because the user or the system wants it to.
struct Interrupted {};

/// Throws `Interrupted` once a signal has come.
void stopIfInterrupted();

}  // namespace host::measure
