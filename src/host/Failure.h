#pragma once

#include <stdexcept>

namespace host {

/// Something that the program cannot do. The message is one line for the user: it names the thing
/// and says what to do about it.
class Failure : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

/// A command line that makes no sense.
class UsageError : public Failure {
 public:
  using Failure::Failure;
};

}  // namespace host
