#include "audio_unit/WakeUp.h"

#include <memory>
#include <thread>
#include <utility>

namespace audio_unit {

// All accesses are sequentially consistent: `request` writes `requested_` and then reads
// `function_`, `set` writes `function_` and then reads `requested_`, and at least one of them must
// see the other's write. The same holds for `callers_` and `function_`.

WakeUp::~WakeUp() {
  set(nullptr);
}

void WakeUp::set(std::function<void()> function) {
  std::unique_ptr<const std::function<void()>> added;
  if (function) added = std::make_unique<const std::function<void()>>(std::move(function));
  const std::unique_ptr<const std::function<void()>> removed(function_.exchange(added.release()));
  while (callers_.load() != 0) std::this_thread::yield();
  if (requested_.load()) call();
}

void WakeUp::request() noexcept {
  if (!requested_.exchange(true)) call();
}

void WakeUp::call() noexcept {
  callers_.fetch_add(1);
  if (const std::function<void()>* function = function_.load()) (*function)();
  callers_.fetch_sub(1);
}

}  // namespace audio_unit
