#pragma once

#include <mutex>

namespace host {

/// While it lives, nothing reaches the process's standard error. For calls into libraries that
/// write there on their own what the program then says in its own words. One at a time: whoever
/// wants another one waits.
class QuietStandardError {
 public:
  QuietStandardError();
  QuietStandardError(const QuietStandardError&) = delete;
  QuietStandardError& operator=(const QuietStandardError&) = delete;
  ~QuietStandardError();

 private:
  std::unique_lock<std::mutex> turn_;
  int saved_;
};

}  // namespace host
