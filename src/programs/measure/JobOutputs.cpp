#include "programs/measure/JobOutputs.h"

#include <algorithm>

#include "programs/measure/Outputs.h"
#include "programs/measure/WaveformPicture.h"

namespace host::measure {
namespace {

/// Some blocks per column of the picture in files of usual length, and blocks that are still worth
/// their overhead.
constexpr std::int64_t kBlocksPerFile = 4000;
constexpr std::int64_t kShortestBlock = 128;

std::uint32_t blockFramesFor(std::int64_t frames) {
  return static_cast<std::uint32_t>(std::clamp<std::int64_t>(
      frames / kBlocksPerFile, kShortestBlock, std::int64_t{unitBlockFrames}));
}

std::uint32_t difference(std::int64_t now, std::int64_t before) {
  return static_cast<std::uint32_t>(std::clamp<std::int64_t>(now - before, 0, UINT32_MAX));
}

}  // namespace

JobOutputs::JobOutputs(const Job& job, const Options& options, const AudioSource& source)
    : overview_(source.format().channels),
      blockFrames_(options.pictures ? blockFramesFor(source.frames()) : unitBlockFrames) {
  const auto claimed = [&](const std::filesystem::path& folder, const char* ending) {
    return std::make_unique<AtomicFile>(folder /
                                        outputName(job.outputName, job.encoder.setting, ending));
  };
  if (options.pictures) picture_ = claimed(*options.pictures, ".png");
  if (options.bitStreams) {
    bitStream_.emplace(claimed(*options.bitStreams, ".m4a"), source.frames(),
                       source.format().sampleRate);
  }
}

void JobOutputs::follow(const Pass& pass) {
  if (!picture_) return;
  overview_.append(pass.input(), pass.inputFrames());
  noteOvers(pass);
}

void JobOutputs::noteOvers(const Pass& pass) {
  const auto peaks = pass.peaks();
  const auto middle = metered_ + (pass.metered() - metered_) / 2;
  for (std::uint32_t channel = 0; channel < overview_.channels(); ++channel) {
    const auto note = [&](Signal signal, std::size_t slot) {
      overview_.addOvers(
          signal, channel, middle,
          difference(peaks.at(slot).mInterSampleClipCount, peaks_.at(slot).mInterSampleClipCount));
    };
    note(Signal::Source, velk::kPeakStatsSlot_SourceLeft + channel);
    note(Signal::Encoded, velk::kPeakStatsSlot_EncodedLeft + channel);
  }
  peaks_ = peaks;
  metered_ = pass.metered();
}

void JobOutputs::commit(const Readings& readings, int reduction) {
  if (bitStream_) bitStream_->finish();
  if (picture_) {
    drawWaveform(overview_, readings, reduction, picture_->temporaryPath());
    picture_->commit();
  }
}

}  // namespace host::measure
