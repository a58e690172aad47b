#pragma once

/// Counts what the calling thread does while one of these lives: allocations through operator new
/// and operator delete, and locks of mutexes.
class CallTraps {
 public:
  struct Counts {
    int allocations = 0;
    int frees = 0;
    int locks = 0;
  };

  CallTraps();
  CallTraps(const CallTraps&) = delete;
  CallTraps& operator=(const CallTraps&) = delete;
  ~CallTraps();

  Counts counts() const;
  /// The sanitizers that replace the thread library leave no place for a trap.
  static bool trapsLocks();
};
