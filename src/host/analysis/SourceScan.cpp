#include <algorithm>
#include <array>
#include <vector>

#include "converter/meters/TruePeakMeter.h"
#include "host/analysis/Scans.h"

namespace host {
namespace {

constexpr std::size_t kBlockFrames = 4096;
constexpr auto kStretchFrames = static_cast<std::size_t>(overStretchFrames);
static_assert(kBlockFrames % kStretchFrames == 0);

/// Finds the overs of one channel.
class OverFinder {
 public:
  OverFinder(std::uint32_t channel, SharedOverview& overview)
      : channel_(channel), overview_(overview) {}

  void process(const float* interleaved, std::size_t stride, std::size_t frames) {
    std::array<float, kStretchFrames> samples;
    for (std::size_t done = 0; done < frames; done += kStretchFrames) {
      const auto count = std::min(kStretchFrames, frames - done);
      for (std::size_t i = 0; i < count; ++i) {
        samples[i] = interleaved[(done + i) * stride + channel_];
      }
      meter_.process(samples.data(), count);
      middle_ = frame_ + static_cast<std::int64_t>(count / 2);
      frame_ += static_cast<std::int64_t>(count);
      mark();
    }
  }
  /// Meters the end of the signal as if silence followed.
  void finish() {
    constexpr std::array<float, converter::TruePeakMeter::kDelay> silence{};
    meter_.process(silence.data(), silence.size());
    mark();
  }

 private:
  void mark() {
    const auto overs = meter_.interSampleOverCount();
    if (overs == overs_) return;
    overview_.addOvers(Signal::Source, channel_, middle_,
                       static_cast<std::uint32_t>(overs - overs_));
    overs_ = overs;
  }

  const std::uint32_t channel_;
  SharedOverview& overview_;
  converter::TruePeakMeter meter_;
  std::int64_t frame_ = 0;
  /// The middle of the last stretch.
  std::int64_t middle_ = 0;
  std::int64_t overs_ = 0;
};

}  // namespace

void scanSource(AudioSource& source, SharedOverview& overview, Progress& progress) {
  const std::size_t channels = source.format().channels;
  const auto length = static_cast<double>(std::max<std::int64_t>(source.frames(), 1));
  std::vector<OverFinder> finders;
  finders.reserve(channels);
  for (std::uint32_t channel = 0; channel < channels; ++channel) {
    finders.emplace_back(channel, overview);
  }
  std::vector<float> block(kBlockFrames * channels);
  std::int64_t read = 0;
  while (progress.goesOn()) {
    const auto got = source.read(block.data(), kBlockFrames);
    overview.append(block.data(), got);
    for (auto& finder : finders) finder.process(block.data(), channels, got);
    read += static_cast<std::int64_t>(got);
    progress.set(std::min(static_cast<double>(read) / length, 1.0));
    if (got < kBlockFrames) break;
  }
  for (auto& finder : finders) finder.finish();
}

}  // namespace host
