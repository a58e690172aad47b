#pragma once

/// Counts what the calling thread does while one of these lives.
class AudioThreadTraps {
 public:
  struct Counts {
    /// Of the C allocator, which operator new uses, both ways.
    int allocations = 0;
    /// Of mutexes, read-write locks and condition variables.
    int locks = 0;
    /// Of semaphores.
    int waits = 0;
    int wakeUps = 0;
  };

  AudioThreadTraps();
  AudioThreadTraps(const AudioThreadTraps&) = delete;
  AudioThreadTraps& operator=(const AudioThreadTraps&) = delete;
  ~AudioThreadTraps();

  Counts counts() const;
};

/// From now on every system call of the calling thread, but for those that end a thread or wake
/// another one, fails and is counted. Returns whether the system allows that.
bool trapSystemCalls();
int trappedSystemCalls();
