#include <algorithm>
#include <array>
#include <vector>

#include "host/analysis/Scans.h"
#include "host/unit/ConverterSetup.h"
#include "host/unit/Readings.h"

namespace host {
namespace {

/// Some blocks per column of a window, and blocks that are worth their overhead.
constexpr std::int64_t kBlocksPerFile = 4000;
constexpr std::int64_t kShortestBlock = 256;

class EncodedScan {
 public:
  EncodedScan(AudioSource& source, const EncoderSetting& setting, SharedOverview& overview)
      : source_(source),
        overview_(overview),
        format_(source.format()),
        unit_(unitFor(format_)),
        blockFrames_(static_cast<std::uint32_t>(std::clamp<std::int64_t>(
            source.frames() / kBlocksPerFile, kShortestBlock, std::int64_t{unitBlockFrames}))),
        interleaved_(std::size_t{blockFrames_} * format_.channels) {
    for (auto& plane : planes_) plane.resize(blockFrames_);
    writeProperty(unit_.get(), audio_unit::offlineRenderProperty, 1);
    applyEncoderSetting(unit_.get(), setting);
    // Nothing of the setting that the unit was made with is left inside.
    unit_->reset();
    peaks_ = peakStatisticsOf(*unit_);
  }

  velk::PeakStatistics run(Progress& progress) {
    const auto length = static_cast<double>(std::max<std::int64_t>(source_.frames(), 1));
    while (progress.goesOn()) {
      if (hasEnded_ && metered_ >= taken_) {
        static_cast<void>(finalReadingsOf(*unit_, format_));
        mark(std::max<std::int64_t>(taken_ - 1, 0));
        break;
      }
      renderBlock();
      progress.set(std::min(static_cast<double>(metered_) / length, 1.0));
    }
    return peaks_;
  }

 private:
  void renderBlock() {
    auto frames = blockFrames_;
    const auto latency = std::int64_t{unit_->latency()};
    if (hasEnded_) {
      // No further than the last frame, so that what is metered is the file and nothing else.
      frames =
          static_cast<std::uint32_t>(std::min<std::int64_t>(frames, taken_ + latency - rendered_));
    }
    takeFrames(frames);
    const std::array<float*, 2> planes = {planes_[0].data(), planes_[1].data()};
    unit_->render(planes.data(), planes.data(), frames);
    rendered_ += frames;
    mark(metered_);
    metered_ = std::max<std::int64_t>(rendered_ - latency, 0);
  }

  void takeFrames(std::uint32_t frames) {
    std::size_t got = 0;
    if (!hasEnded_) {
      got = source_.read(interleaved_.data(), frames);
      hasEnded_ = got < frames;
      taken_ += static_cast<std::int64_t>(got);
    }
    const std::size_t channels = format_.channels;
    for (std::size_t channel = 0; channel < channels; ++channel) {
      auto& plane = planes_[channel];
      for (std::size_t i = 0; i < got; ++i) plane[i] = interleaved_[i * channels + channel];
      std::fill(plane.begin() + static_cast<std::ptrdiff_t>(got), plane.end(), 0.0F);
    }
  }

  void mark(std::int64_t frame) {
    const auto peaks = peakStatisticsOf(*unit_);
    for (std::uint32_t channel = 0; channel < format_.channels; ++channel) {
      const auto slot = velk::kPeakStatsSlot_EncodedLeft + channel;
      const auto overs =
          peaks.at(slot).mInterSampleClipCount - peaks_.at(slot).mInterSampleClipCount;
      if (overs > 0) {
        overview_.addOvers(Signal::Encoded, channel, frame, static_cast<std::uint32_t>(overs));
      }
    }
    peaks_ = peaks;
  }

  AudioSource& source_;
  SharedOverview& overview_;
  const AudioFormat format_;
  const std::unique_ptr<converter::ConverterUnit> unit_;
  const std::uint32_t blockFrames_;
  std::vector<float> interleaved_;
  std::array<std::vector<float>, 2> planes_;
  velk::PeakStatistics peaks_{};
  bool hasEnded_ = false;
  std::int64_t taken_ = 0;
  std::int64_t rendered_ = 0;
  std::int64_t metered_ = 0;
};

}  // namespace

velk::PeakStatistics scanEncoded(AudioSource& source, const EncoderSetting& setting,
                                 SharedOverview& overview, Progress& progress) {
  return EncodedScan(source, setting, overview).run(progress);
}

}  // namespace host
