#pragma once

namespace host {

/// While it lives, nothing reaches the process's standard error. For calls into libraries that
/// write there on their own what the program then says in its own words. Main thread only, briefly.
class QuietStandardError {
 public:
  QuietStandardError();
  QuietStandardError(const QuietStandardError&) = delete;
  QuietStandardError& operator=(const QuietStandardError&) = delete;
  ~QuietStandardError();

 private:
  int saved_;
};

}  // namespace host
