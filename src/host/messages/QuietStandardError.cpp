#include "host/messages/QuietStandardError.h"

#include <fcntl.h>
#include <unistd.h>

#include <cstdio>

namespace host {

namespace {

/// Two at once would each take the other's silence for the real thing.
std::mutex& onlyOne() {
  static std::mutex mutex;
  return mutex;
}

}  // namespace

QuietStandardError::QuietStandardError() : turn_(onlyOne()), saved_(-1) {
  std::fflush(stderr);
  const int nowhere = ::open("/dev/null", O_WRONLY | O_CLOEXEC);
  if (nowhere < 0) return;
  saved_ = ::fcntl(STDERR_FILENO, F_DUPFD_CLOEXEC, 3);
  if (saved_ >= 0) ::dup2(nowhere, STDERR_FILENO);
  ::close(nowhere);
}

QuietStandardError::~QuietStandardError() {
  if (saved_ < 0) return;
  std::fflush(stderr);
  ::dup2(saved_, STDERR_FILENO);
  ::close(saved_);
}

}  // namespace host
