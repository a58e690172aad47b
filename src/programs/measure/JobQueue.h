#pragma once

#include <chrono>
#include <condition_variable>
#include <cstddef>
#include <exception>
#include <memory>
#include <mutex>
#include <optional>
#include <thread>
#include <vector>

#include "programs/measure/Job.h"

namespace host::measure {

/// How a job ended: a row, or why there is none.
struct JobEnd {
  std::optional<Row> row;
  /// What was thrown in its place.
  std::exception_ptr error;
};

/// Works through jobs on several threads, begun in their order. Main thread only but for the work.
class JobQueue {
 public:
  /// `jobs` and `options` outlive the queue.
  JobQueue(const std::vector<Job>& jobs, const Options& options);
  JobQueue(const JobQueue&) = delete;
  JobQueue& operator=(const JobQueue&) = delete;
  /// Begins no more jobs, and ends those that run.
  ~JobQueue();

  /// How the job ended; nothing when it has not within the time.
  std::optional<JobEnd> waitFor(std::size_t job, std::chrono::milliseconds time);

  /// Whether it runs now.
  bool runs(std::size_t job);
  const JobProgress& progress(std::size_t job) const { return *progress_[job]; }
  /// How many have ended.
  std::size_t ended();

 private:
  enum class State { Waiting, Running, Ended };

  void work();

  const std::vector<Job>& jobs_;
  const Options& options_;
  std::vector<std::unique_ptr<JobProgress>> progress_;
  std::mutex mutex_;
  std::condition_variable jobEnded_;
  std::vector<State> states_;
  std::vector<JobEnd> ends_;
  std::size_t next_ = 0;
  bool stop_ = false;
  std::vector<std::thread> workers_;
};

}  // namespace host::measure
