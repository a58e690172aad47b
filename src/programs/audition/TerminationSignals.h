#pragma once

#include <QSocketNotifier>
#include <functional>
#include <memory>

namespace host::audition {

/// Turns SIGINT and SIGTERM into a call on the main thread. Made before any other thread starts.
class TerminationSignals {
 public:
  TerminationSignals();
  TerminationSignals(const TerminationSignals&) = delete;
  TerminationSignals& operator=(const TerminationSignals&) = delete;
  ~TerminationSignals();

  /// Calls `terminated` while what it returns lives. Needs the application object. A signal that
  /// came before is told at the next turn of the loop.
  [[nodiscard]] std::unique_ptr<QSocketNotifier> listen(std::function<void()> terminated) const;

 private:
  int descriptor_;
};

}  // namespace host::audition
