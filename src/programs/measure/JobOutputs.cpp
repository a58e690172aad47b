#include "programs/measure/JobOutputs.h"

#include "programs/measure/Outputs.h"
#include "programs/measure/WaveformPng.h"

namespace host::measure {

JobOutputs::JobOutputs(const Job& job, const Options& options, const AudioSource& source)
    : overview_(source.format().channels) {
  const auto claim = [&](const std::filesystem::path& folder, const char* ending) {
    return std::make_unique<AtomicFile>(folder /
                                        outputName(job.outputName, job.encoder.setting, ending));
  };
  if (options.pictures) picture_ = claim(*options.pictures, ".png");
  if (options.bitStreams) {
    bitStream_.emplace(claim(*options.bitStreams, ".m4a"), source.frames(),
                       source.format().sampleRate);
  }
}

void JobOutputs::follow(const OfflineRun& run) {
  if (!picture_) return;
  overview_.append(run.input(), run.inputFrames());
  for (const auto& overs : run.overs()) {
    overview_.addOvers(overs.signal, overs.channel, overs.frame, overs.count);
  }
}

void JobOutputs::commit(const Readings& readings, int reduction) {
  if (bitStream_) bitStream_->finish();
  if (picture_) {
    drawWaveform(overview_, readings, reduction, picture_->temporaryPath());
    picture_->commit();
  }
}

}  // namespace host::measure
