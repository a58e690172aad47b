#pragma once

namespace realtime {

/// What the system let a thread have.
enum class ThreadPriority { realTime, raised, ordinary };

/// Moves the calling thread before ordinary ones: into the lowest real-time priority, which is
/// below every audio thread, where the process may (`RLIMIT_RTPRIO`), else as far up among the
/// ordinary ones as it may go (`RLIMIT_NICE`). Returns what came of it.
ThreadPriority raiseThreadPriority();

/// Puts the calling thread back among the ordinary ones.
void dropThreadPriority();

}  // namespace realtime
