#pragma once

/// Counts the calling thread's allocations, locks, waits and wake-ups while the object exists.
class AudioThreadTraps {
 public:
  struct Counts {
    /// Calls to allocate or free, by operator new and delete too.
    int allocations = 0;
    /// Calls on mutexes, spin locks, read-write locks and condition variables.
    int locks = 0;
    /// Semaphore waits and posts.
    int waits = 0;
    int wakeUps = 0;
  };

  AudioThreadTraps();
  AudioThreadTraps(const AudioThreadTraps&) = delete;
  AudioThreadTraps& operator=(const AudioThreadTraps&) = delete;
  ~AudioThreadTraps();

  Counts counts() const;
};

/// From now on every system call of the calling thread fails and is counted, except those that wake
/// or end a thread. Returns whether the system allows this.
bool trapSystemCalls();
int trappedSystemCalls();
