#include "programs/audition/TerminationSignals.h"

#include <sys/signalfd.h>
#include <unistd.h>

#include <csignal>
#include <utility>

namespace host::audition {

TerminationSignals::TerminationSignals() : descriptor_(-1) {
  sigset_t signals;
  sigemptyset(&signals);
  sigaddset(&signals, SIGINT);
  sigaddset(&signals, SIGTERM);
  // All threads started from now on inherit this.
  pthread_sigmask(SIG_BLOCK, &signals, nullptr);
  descriptor_ = ::signalfd(-1, &signals, SFD_CLOEXEC | SFD_NONBLOCK);
}

TerminationSignals::~TerminationSignals() {
  if (descriptor_ >= 0) ::close(descriptor_);
}

std::unique_ptr<QSocketNotifier> TerminationSignals::listen(
    std::function<void()> onTermination) const {
  if (descriptor_ < 0) return nullptr;
  auto notifier = std::make_unique<QSocketNotifier>(descriptor_, QSocketNotifier::Read);
  QObject::connect(notifier.get(), &QSocketNotifier::activated,
                   [descriptor = descriptor_, onTermination = std::move(onTermination)] {
                     signalfd_siginfo info;
                     while (::read(descriptor, &info, sizeof info) == sizeof info) {
                     }
                     onTermination();
                   });
  return notifier;
}

}  // namespace host::audition
