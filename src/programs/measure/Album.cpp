#include "programs/measure/Album.h"

#include <chrono>
#include <memory>
#include <string>
#include <utility>

#include "host/messages/Failure.h"
#include "programs/measure/Console.h"
#include "programs/measure/Inputs.h"
#include "programs/measure/Interruption.h"
#include "programs/measure/JobQueue.h"
#include "programs/measure/Outputs.h"
#include "programs/measure/ProgressLine.h"
#include "programs/measure/Report.h"
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

/// Tells of jobs in their order as they end.
class Account {
 public:
  Account(const Options& options, std::vector<std::filesystem::path> files)
      : options_(options),
        files_(std::move(files)),
        table_(texts(files_), Console::outputWidth(), options.findTrim, options.interSample,
               Console::isColored()) {}

  Console& console() { return console_; }

  void fail(const std::string& complaint) {
    failed_ = true;
    // Every setting meets the same fault of a file.
    if (complaint != lastComplaint_) console_.complain(complaint);
    lastComplaint_ = complaint;
  }

  void add(const Row& row) {
    for (const auto& warning : row.warnings) console_.complain("warning: " + warning);
    if (row.isCutOff) {
      fail("the file '" + row.readings.file +
           "' is damaged or cut off: it holds less than it promises; what is there was measured");
    }
    if (options_.json) {
      console_.say(asJson(row) + "\n");
    } else {
      console_.say((rows_ == 0 ? table_.head() : "") + table_.lines(row));
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
  Console console_;
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

JobEnd awaited(JobQueue& queue, const std::vector<Job>& jobs, const Options& options,
               std::size_t job, std::chrono::steady_clock::time_point begin, Console& console) {
  for (;;) {
    if (auto end = queue.waitFor(job, kLookAgain)) return std::move(*end);
    if (!console.showsProgress()) continue;
    auto state = stateOf(queue, jobs, options, job);
    state.seconds = std::chrono::duration<double>(std::chrono::steady_clock::now() - begin).count();
    console.setProgress(progressLine(state, Console::errorWidth()));
  }
}

void tellOf(const Job& job, JobEnd end, Account& account) {
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

int measureAll(const Options& options) {
  if (options.bitStreams) makeFolder(*options.bitStreams);
  if (options.pictures) makeFolder(*options.pictures);
  auto inputs = inputsOf(options.inputs);
  const auto jobs = jobsFor(inputs.files, options);
  Account account(options, inputs.files);
  for (const auto& complaint : inputs.complaints) account.fail(complaint);
  const auto begin = std::chrono::steady_clock::now();
  JobQueue queue(jobs, options);
  try {
    for (std::size_t job = 0; job < jobs.size(); ++job) {
      tellOf(jobs[job], awaited(queue, jobs, options, job, begin, account.console()), account);
    }
  } catch (const Interrupted&) {
    account.console().complain("interrupted after " + account.summary() +
                               "; nothing half-written was left");
    return kKilledBy + interruption();
  }
  return account.status();
}

}  // namespace host::measure
