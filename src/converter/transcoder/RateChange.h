#pragma once

#include <memory>
#include <span>
#include <vector>

#include "audio_unit/AudioUnitTypes.h"

namespace converter {

/// Halves or doubles the sample rate of a signal without moving it: sample n comes out for sample
/// 2n or n/2. What comes out depends on the samples alone as long as they come in blocks of one
/// size. Worker thread.
class RateChange {
 public:
  enum class Direction { halve, doubleUp };

  /// `blockFrames` is the most that `process` is given. Throws `std::runtime_error` when there is
  /// no resampler.
  RateChange(Direction direction, UInt32 channels, UInt32 blockFrames);

  /// Takes the next samples and returns how many have come out into `planes`: at most
  /// `kResamplerDelay` of the higher rate less than belong to what was taken since the start.
  std::size_t process(std::span<const float* const> input, UInt32 frames);

  /// Of the last `process`, valid until the next.
  const float* plane(UInt32 channel) const { return planes_[channel].data(); }

  /// The next sample is the first of a new signal.
  void clear();

 private:
  struct Delete {
    void operator()(void* resampler) const;
  };

  std::unique_ptr<void, Delete> resampler_;
  std::vector<std::vector<float>> planes_;
};

}  // namespace converter
