#pragma once

#include <memory>
#include <optional>

#include "host/analysis/OfflineRun.h"
#include "host/analysis/WaveformOverview.h"
#include "host/files/AudioSource.h"
#include "host/unit/Readings.h"
#include "programs/measure/Job.h"
#include "programs/measure/M4aFile.h"

namespace host::measure {

/// The files that a job writes: bit stream and picture. Without `commit` none of them appears.
class JobOutputs {
 public:
  /// Claims the files' names. Throws `Failure`.
  JobOutputs(const Job& job, const Options& options, const AudioSource& source);

  /// For the run that is to be kept; null if no bit stream is wanted.
  converter::BitStreamSink* bitStream() { return bitStream_ ? &*bitStream_ : nullptr; }
  /// Whether the run has to locate its overs.
  bool drawsPicture() const { return picture_ != nullptr; }
  /// Takes in the run's last step, or its end.
  void follow(const OfflineRun& run);
  /// After the run, of a file reduced by so many tenths of a decibel. Throws `Failure`.
  void commit(const Readings& readings, int reduction);

 private:
  std::optional<M4aFile> bitStream_;
  std::unique_ptr<AtomicFile> picture_;
  WaveformOverview overview_;
};

}  // namespace host::measure
