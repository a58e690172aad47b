#include "converter/meters/TruePeakMeter.h"

#include <algorithm>
#include <bit>
#include <cmath>

#include "converter/meters/VectorClones.h"

namespace converter {
namespace {

constexpr float kQuietest = 1e-15F;
constexpr float kLoudest = 1e30F;

struct SampleReadings {
  std::int32_t peakBits;
  std::int32_t clips;
};

/// Copies the samples with those that are no sound replaced by 0, and reads their peak and clips.
VELK_VECTOR_CLONES
SampleReadings copySound(const float* samples, std::size_t count, float* sound) noexcept {
  SampleReadings readings{0, 0};
  for (std::size_t i = 0; i < count; ++i) {
    const float magnitude = std::fabs(samples[i]);
    const bool isSound = (magnitude >= kQuietest) & (magnitude <= kLoudest);
    sound[i] = isSound ? samples[i] : 0.0F;
    // Non-negative floats are ordered like their bits, and an integer maximum can be vectorised.
    const std::int32_t bits = std::bit_cast<std::int32_t>(isSound ? magnitude : 0.0F);
    readings.peakBits = std::max(readings.peakBits, bits);
    readings.clips += magnitude > 1.0F ? 1 : 0;
  }
  return readings;
}

}  // namespace

float decibelsOfMagnitude(float magnitude) noexcept {
  const double decibels = 20 * std::log10(static_cast<double>(magnitude));
  return std::max(static_cast<float>(decibels), kMeterFloorDecibels);
}

void TruePeakMeter::process(const float* samples, std::size_t frames) noexcept {
  while (frames > 0) {
    const std::size_t count = std::min(frames, kMaximumIntervals);
    takeSamples(samples, count);
    samples += count;
    frames -= count;
  }
  updateStatistics();
}

void TruePeakMeter::takeSamples(const float* samples, std::size_t count) noexcept {
  const SampleReadings read = copySound(samples, count, signal_.data() + kHistory);
  samplePeak_ = std::max(samplePeak_, std::bit_cast<float>(read.peakBits));
  sampleClips_ += read.clips;
  interSample_.peak = std::max(interSample_.peak, samplePeak_);

  const std::size_t skipped = std::min(intervalsToSkip_, count);
  intervalsToSkip_ -= skipped;
  if (skipped < count) {
    analyseIntervals(signal_.data() + kSamplesBefore + skipped, count - skipped, interSample_);
  }
  std::copy_n(signal_.data() + count, kHistory, signal_.data());
}

void TruePeakMeter::reset() noexcept {
  samplePeak_ = 0;
  sampleClips_ = 0;
  interSample_ = {0, 0};
  intervalsToSkip_ = kDelay;
  updateStatistics();
}

void TruePeakMeter::pass(const float* samples, std::size_t frames) noexcept {
  while (frames > 0) {
    const std::size_t count = std::min(frames, kMaximumIntervals);
    static_cast<void>(copySound(samples, count, signal_.data() + kHistory));
    std::copy_n(signal_.data() + count, kHistory, signal_.data());
    samples += count;
    frames -= count;
  }
  intervalsToSkip_ = kDelay;
}

void TruePeakMeter::finish() noexcept {
  constexpr std::array<float, kDelay> silence{};
  process(silence.data(), silence.size());
  abandon();
}

void TruePeakMeter::leaveOut() noexcept {
  signal_.fill(0);
  intervalsToSkip_ = kHistory;
}

void TruePeakMeter::abandon() noexcept {
  signal_.fill(0);
  intervalsToSkip_ = kDelay;
}

void TruePeakMeter::updateStatistics() noexcept {
  if (samplePeak_ != shownSamplePeak_) {
    shownSamplePeak_ = samplePeak_;
    statistics_.mSamplePeak = decibelsOfMagnitude(samplePeak_);
  }
  if (interSample_.peak != shownInterSamplePeak_) {
    shownInterSamplePeak_ = interSample_.peak;
    statistics_.mInterSamplePeak = decibelsOfMagnitude(interSample_.peak);
  }
  statistics_.mSampleClipCount = sampleClips_;
  statistics_.mInterSampleClipCount = interSample_.overs;
}

}  // namespace converter
