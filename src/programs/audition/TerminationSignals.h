#pragma once

#include <QSocketNotifier>
#include <functional>
#include <memory>

namespace host::audition {

/// Turns SIGINT and SIGTERM into a call on the main thread. To be made before any other thread
/// starts.
class TerminationSignals {
 public:
  TerminationSignals();
  TerminationSignals(const TerminationSignals&) = delete;
  TerminationSignals& operator=(const TerminationSignals&) = delete;
  ~TerminationSignals();

  /// Calls `onTermination` for each signal while the returned object exists. Needs the application
  /// object. A signal that came earlier is delivered in the next turn of the event loop.
  [[nodiscard]] std::unique_ptr<QSocketNotifier> listen(std::function<void()> onTermination) const;

 private:
  int descriptor_;
};

}  // namespace host::audition
