#pragma once

#include <atomic>
#include <filesystem>
#include <optional>
#include <string>
#include <vector>

#include "host/unit/Readings.h"
#include "programs/measure/EncoderChoice.h"
#include "programs/measure/Options.h"

namespace host::measure {

/// One file to be measured with one encoder.
struct Job {
  std::filesystem::path file;
  EncoderChoice encoder;
  /// Of what is written of the file, see `outputNames`.
  std::string outputName;
};

/// The reduction that `--find-trim` has found.
struct Trim {
  /// Tenths of a decibel, from 0 on.
  int reduction = 0;
  bool interSample = false;
  /// Of the whole file, or as much of it as showed an over.
  int encodes = 0;
};

/// What a job came to.
struct Row {
  /// Of the reduced file where there is a trim.
  Readings readings;
  std::optional<Trim> trim;
  /// Lines for the user.
  std::vector<std::string> warnings;
  /// Whether the file held less than it promises.
  bool isCutOff = false;
};

/// How far a job is, for other threads to look at, and whether it is still wanted.
struct JobProgress {
  /// Of the encode that runs, in thousandths.
  std::atomic<int> done{0};
  /// Which encode runs, from 0 on, and its reduction in tenths of a decibel.
  std::atomic<int> encode{0};
  std::atomic<int> reduction{0};
  /// Makes the job end with `Interrupted`.
  std::atomic<bool> isUnwanted{false};
};

/// Whether there are overs of the kind that counts after encoding.
bool hasOvers(const Readings& readings, bool interSample);

/// Throws `Failure`, which names the file, when it cannot be measured or an output not be written,
/// and `Interrupted`.
Row runJob(const Job& job, const Options& options, JobProgress& progress);

}  // namespace host::measure
