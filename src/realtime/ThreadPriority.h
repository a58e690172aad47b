#pragma once

namespace realtime {

/// The priority that the system granted.
enum class ThreadPriority { realTime, raised, ordinary };

/// Raises the calling thread above ordinary ones: to the lowest real-time priority, below any audio
/// thread, if the process is allowed to (`RLIMIT_RTPRIO`); otherwise to the best nice value it may
/// have (`RLIMIT_NICE`). Returns what was granted.
ThreadPriority raiseThreadPriority();

/// Returns the calling thread to ordinary priority.
void dropThreadPriority();

}  // namespace realtime
