#include "programs/measure/Album.h"

#include <chrono>
#include <memory>
#include <string>
#include <utility>

#include "host/messages/Failure.h"
#include "programs/measure/Inputs.h"
#include "programs/measure/Interruption.h"
#include "programs/measure/JobQueue.h"
#include "programs/measure/Outputs.h"
#include "programs/measure/ProgressLine.h"
#include "programs/measure/RowJson.h"
#include "programs/measure/Table.h"

namespace host::measure {
namespace {

constexpr auto kLookAgain = std::chrono::milliseconds(100);

constexpr int kSuccess = 0;
constexpr int kFailure = 1;
constexpr int kOversFound = 3;
constexpr int kKilledBy = 128;

std::vector<Job> jobsFor(const std::vector<std::filesystem::path>& files, const Options& options) {
  const auto names = outputNames(files);
  std::vector<Job> jobs;
  for (std::size_t i = 0; i < files.size(); ++i) {
    for (const auto& encoder : options.encoders) jobs.push_back({files[i], encoder, names[i]});
  }
  return jobs;
}

std::vector<std::string> texts(const std::vector<std::filesystem::path>& files) {
  std::vector<std::string> result;
  result.reserve(files.size());
  for (const auto& file : files) result.push_back(file.string());
  return result;
}

std::string count(std::size_t number, const char* one, const char* many) {
  return std::to_string(number) + " " + (number == 1 ? one : many);
}

/// Prints the jobs' results in their order, and keeps count of them.
class Account {
 public:
  Account(const Options& options, std::vector<std::filesystem::path> files, Terminal& terminal)
      : options_(options),
        files_(std::move(files)),
        terminal_(terminal),
        table_(texts(files_), Terminal::outputWidth(), options.findTrim, options.interSample,
               Terminal::isColored()) {}

  void fail(const std::string& complaint) {
    failed_ = true;
    // A faulty file fails with every setting, but is complained of once.
    if (complaint != lastComplaint_) terminal_.complain(complaint);
    lastComplaint_ = complaint;
  }

  void add(const Row& row) {
    for (const auto& warning : row.warnings) terminal_.warn(warning);
    if (row.isCutOff) {
      fail("the file '" + row.readings.file +
           "' is damaged or cut off: it holds less than it promises; what is there was measured");
    }
    if (options_.json) {
      terminal_.say(asJson(row) + "\n");
    } else {
      terminal_.say((rows_ == 0 ? table_.head() : "") + table_.lines(row));
    }
    ++rows_;
    const bool needsTrim = row.trim && row.trim->reduction > 0;
    if (needsTrim || hasOvers(row.readings, options_.interSample)) ++over_;
  }

  std::string summary() const {
    return count(rows_, "measurement", "measurements") + " of " +
           count(files_.size(), "file", "files") + ", " + std::to_string(over_) + " with overs";
  }

  int status() const {
    if (failed_) return kFailure;
    return options_.failOnOvers && over_ > 0 ? kOversFound : kSuccess;
  }

 private:
  const Options& options_;
  const std::vector<std::filesystem::path> files_;
  Terminal& terminal_;
  Table table_;
  std::string lastComplaint_;
  std::size_t rows_ = 0;
  std::size_t over_ = 0;
  bool failed_ = false;
};

ProgressState stateOf(JobQueue& queue, const std::vector<Job>& jobs, const Options& options,
                      std::size_t first) {
  ProgressState state;
  state.jobs = jobs.size();
  state.done = static_cast<double>(queue.ended());
  for (auto job = first; job < jobs.size(); ++job) {
    if (!queue.runs(job)) continue;
    const auto& progress = queue.progress(job);
    const double part = progress.done / 1000.0;
    state.done += options.findTrim ? searchProgress(progress.encode, part) : part;
    if (!state.file.empty()) continue;
    state.file = jobs[job].file.string();
    state.setting = settingName(jobs[job].encoder.setting);
    if (options.findTrim) state.reduction = progress.reduction;
  }
  return state;
}

/// Waits until the job has ended, and shows how far all of them are in the meantime.
JobEnd waitForJob(JobQueue& queue, const std::vector<Job>& jobs, const Options& options,
                  std::size_t job, std::chrono::steady_clock::time_point begin,
                  Terminal& terminal) {
  for (;;) {
    if (auto end = queue.waitFor(job, kLookAgain)) return std::move(*end);
    if (!terminal.showsProgress()) continue;
    auto state = stateOf(queue, jobs, options, job);
    state.seconds = std::chrono::duration<double>(std::chrono::steady_clock::now() - begin).count();
    terminal.setProgress(progressLine(state, Terminal::errorWidth()));
  }
}

void report(const Job& job, const JobEnd& end, Account& account) {
  if (end.row) return account.add(*end.row);
  try {
    std::rethrow_exception(end.error);
  } catch (const Failure& failure) {
    account.fail(failure.what());
  } catch (const std::exception& error) {
    account.fail("cannot measure '" + job.file.string() + "': " + error.what());
  }
}

}  // namespace

int measureAll(const Options& options, Terminal& terminal) {
  if (options.bitStreams) makeFolder(*options.bitStreams);
  if (options.pictures) makeFolder(*options.pictures);
  auto inputs = inputsOf(options.inputs);
  const auto jobs = jobsFor(inputs.files, options);
  Account account(options, inputs.files, terminal);
  for (const auto& complaint : inputs.complaints) account.fail(complaint);
  const auto begin = std::chrono::steady_clock::now();
  JobQueue queue(jobs, options);
  try {
    for (std::size_t job = 0; job < jobs.size(); ++job) {
      report(jobs[job], waitForJob(queue, jobs, options, job, begin, terminal), account);
    }
  } catch (const Interrupted&) {
    terminal.complain("interrupted after " + account.summary() + "; nothing half-written was left");
    return kKilledBy + interruption();
  }
  return account.status();
}

}  // namespace host::measure
