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
  // Every thread made from now on inherits this.
  pthread_sigmask(SIG_BLOCK, &signals, nullptr);
  descriptor_ = ::signalfd(-1, &signals, SFD_CLOEXEC | SFD_NONBLOCK);
}

TerminationSignals::~TerminationSignals() {
  if (descriptor_ >= 0) ::close(descriptor_);
}

std::unique_ptr<QSocketNotifier> TerminationSignals::listen(
    std::function<void()> terminated) const {
  if (descriptor_ < 0) return nullptr;
  auto notifier = std::make_unique<QSocketNotifier>(descriptor_, QSocketNotifier::Read);
  QObject::connect(notifier.get(), &QSocketNotifier::activated,
                   [descriptor = descriptor_, terminated = std::move(terminated)] {
                     signalfd_siginfo info;
                     while (::read(descriptor, &info, sizeof info) == sizeof info) {
                     }
                     terminated();
                   });
  return notifier;
}

}  // namespace host::audition
