#include "host/analysis/BackgroundWork.h"

#include <sys/resource.h>
#include <unistd.h>

#include <exception>
#include <utility>

#include "host/messages/Failure.h"

namespace host {
namespace {

/// Half way down the scale. Threads that the work starts inherit it.
constexpr int kNiceness = 10;

void stepBehind() {
  // Where the system refuses, the work runs with the usual priority.
  static_cast<void>(::setpriority(PRIO_PROCESS, static_cast<id_t>(::gettid()), kNiceness));
}

}  // namespace

BackgroundWork::BackgroundWork(std::function<void(Progress&)> work)
    : thread_([this, work = std::move(work)] { run(work); }) {}

BackgroundWork::~BackgroundWork() {
  progress_.stop();
  thread_.join();
}

void BackgroundWork::run(const std::function<void(Progress&)>& work) noexcept {
  stepBehind();
  try {
    work(progress_);
  } catch (const Failure& failure) {
    failure_ = failure.message();
  } catch (const std::exception& error) {
    failure_ = error.what();
  }
  ended_.store(true, std::memory_order_release);
}

}  // namespace host
