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

/// How a job ended: with a row, or with an exception.
struct JobEnd {
  std::optional<Row> row;
  std::exception_ptr error;
};

/// Does jobs on several threads, started in their order. Everything here is for the thread that
/// made the queue.
class JobQueue {
 public:
  /// `jobs` and `options` outlive the queue.
  JobQueue(const std::vector<Job>& jobs, const Options& options);
  JobQueue(const JobQueue&) = delete;
  JobQueue& operator=(const JobQueue&) = delete;
  /// Starts no more jobs, and stops those that run.
  ~JobQueue();

  /// Waits for the job to end; nothing if it does not within this time.
  std::optional<JobEnd> waitFor(std::size_t job, std::chrono::milliseconds time);

  /// Whether the job is running.
  bool runs(std::size_t job);
  const JobProgress& progress(std::size_t job) const { return *progress_[job]; }
  /// How many jobs have ended.
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
