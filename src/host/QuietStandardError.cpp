#include "host/QuietStandardError.h"

#include <fcntl.h>
#include <unistd.h>

#include <cstdio>

namespace host {

QuietStandardError::QuietStandardError() : saved_(-1) {
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
