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
  /// Names the files that are written, see `outputNames`.
  std::string outputName;
};

/// The reduction that `--find-trim` has found.
struct Trim {
  /// In tenths of a decibel, 0 or more.
  int reduction = 0;
  bool interSample = false;
  /// How often the file was encoded, to its end or to its first over.
  int encodes = 0;
};

/// The result of a job.
struct Row {
  /// Those of the reduced file if there is a trim.
  Readings readings;
  std::optional<Trim> trim;
  /// Lines for the user.
  std::vector<std::string> warnings;
  /// Whether the file holds less than it promises.
  bool isCutOff = false;
};

/// How far a job has got, for other threads to see, and whether it is still wanted.
struct JobProgress {
  /// Thousandths of the current encode.
  std::atomic<int> done{0};
  /// The number of the current encode, from 0, and its reduction in tenths of a decibel.
  std::atomic<int> encode{0};
  std::atomic<int> reduction{0};
  /// Makes the job end with `Interrupted`.
  std::atomic<bool> isUnwanted{false};
};

/// Whether the encoded signal has clips, or with `interSample` inter-sample overs.
bool hasOvers(const Readings& readings, bool interSample);

/// Measures the file and writes what the options ask for. Throws a `Failure` that names the file
/// when it cannot be measured or an output cannot be written, and `Interrupted`.
Row runJob(const Job& job, const Options& options, JobProgress& progress);

}  // namespace host::measure
