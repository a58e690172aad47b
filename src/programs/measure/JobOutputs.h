#pragma once

#include <memory>
#include <optional>

#include "host/analysis/WaveformOverview.h"
#include "host/files/AudioSource.h"
#include "host/unit/Readings.h"
#include "programs/measure/Job.h"
#include "programs/measure/M4aFile.h"
#include "programs/measure/Pass.h"

namespace host::measure {

/// What a job leaves in folders: bit stream and picture. Without `commit` it leaves nothing.
class JobOutputs {
 public:
  /// Claims the files. Throws `Failure`.
  JobOutputs(const Job& job, const Options& options, const AudioSource& source);

  /// For the pass that is to be kept; null when no bit stream is.
  converter::BitStreamSink* bitStream() { return bitStream_ ? &*bitStream_ : nullptr; }
  /// Short enough that overs are drawn where they are.
  std::uint32_t blockFrames() const { return blockFrames_; }
  /// Takes in the pass's last step.
  void follow(const Pass& pass);
  /// After the pass, of a file reduced by so many tenths of a decibel. Throws `Failure`.
  void commit(const Readings& readings, int reduction);

 private:
  void noteOvers(const Pass& pass);

  std::optional<M4aFile> bitStream_;
  std::unique_ptr<AtomicFile> picture_;
  WaveformOverview overview_;
  std::uint32_t blockFrames_;
  std::int64_t metered_ = 0;
  velk::PeakStatistics peaks_{};
};

}  // namespace host::measure
