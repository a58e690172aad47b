#pragma once

#include <memory>
#include <span>
#include <vector>

#include "audio_unit/AudioUnitTypes.h"

namespace converter {

/// Halves or doubles a signal's sample rate without shifting it in time: output sample n lies at
/// input sample 2n or n/2. The output depends only on the samples as long as all blocks have the
/// same size. Worker thread.
class RateChange {
 public:
  enum class Direction { halve, doubleUp };

  /// `blockFrames` is the largest block for `process`. Throws `std::runtime_error` when libsoxr
  /// cannot make a resampler.
  RateChange(Direction direction, UInt32 channels, UInt32 blockFrames);

  /// Takes the next samples and returns how many were written to the planes. In all, the output
  /// lags behind the input by at most `kResamplerDelay` samples of the higher rate.
  std::size_t process(std::span<const float* const> input, UInt32 frames);

  /// Output of the last `process`, valid until the next.
  const float* plane(UInt32 channel) const { return planes_[channel].data(); }

  /// Starts a new signal.
  void clear();

 private:
  struct Delete {
    void operator()(void* resampler) const;
  };

  std::unique_ptr<void, Delete> resampler_;
  std::vector<std::vector<float>> planes_;
};

}  // namespace converter
