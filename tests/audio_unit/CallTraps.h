#pragma once

/// While an instance lives, counts the calling thread's allocations, frees and mutex locks.
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
  /// False in builds with a sanitizer that itself replaces the lock functions.
  static bool trapsLocks();
};
