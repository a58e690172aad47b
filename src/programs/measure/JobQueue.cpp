#include "programs/measure/JobQueue.h"

#include <algorithm>
#include <utility>

namespace host::measure {

JobQueue::JobQueue(const std::vector<Job>& jobs, const Options& options)
    : jobs_(jobs), options_(options), states_(jobs.size(), State::Waiting), ends_(jobs.size()) {
  for (std::size_t i = 0; i < jobs.size(); ++i) {
    progress_.push_back(std::make_unique<JobProgress>());
  }
  const auto count = std::min<std::size_t>(options.jobs, jobs.size());
  for (std::size_t i = 0; i < count; ++i) workers_.emplace_back([this] { work(); });
}

JobQueue::~JobQueue() {
  {
    const std::lock_guard lock(mutex_);
    stop_ = true;
  }
  for (auto& progress : progress_) progress->isUnwanted = true;
  for (auto& worker : workers_) worker.join();
}

void JobQueue::work() {
  std::unique_lock lock(mutex_);
  while (!stop_ && next_ < jobs_.size()) {
    const auto job = next_++;
    states_[job] = State::Running;
    lock.unlock();
    JobEnd end;
    try {
      end.row = runJob(jobs_[job], options_, *progress_[job]);
    } catch (...) {
      end.error = std::current_exception();
    }
    lock.lock();
    ends_[job] = std::move(end);
    states_[job] = State::Ended;
    jobEnded_.notify_all();
  }
}

std::optional<JobEnd> JobQueue::waitFor(std::size_t job, std::chrono::milliseconds time) {
  std::unique_lock lock(mutex_);
  const auto ended = [&] { return states_[job] == State::Ended; };
  if (!jobEnded_.wait_for(lock, time, ended)) return std::nullopt;
  return std::exchange(ends_[job], {});
}

bool JobQueue::runs(std::size_t job) {
  const std::lock_guard lock(mutex_);
  return states_[job] == State::Running;
}

std::size_t JobQueue::ended() {
  const std::lock_guard lock(mutex_);
  return static_cast<std::size_t>(std::count(states_.begin(), states_.end(), State::Ended));
}

}  // namespace host::measure
