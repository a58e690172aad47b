#pragma once

#include <memory>
#include <vector>

#include "host/files/AudioSource.h"
#include "host/files/Resampler.h"

namespace host {

/// A source at another sample rate (soxr, very high quality, linear phase). Nothing
/// moves in time: frame n is the original's moment n / sample rate, however it was reached.
class ResampledSource : public AudioSource {
 public:
  /// Throws `Failure` when the resampler cannot be made.
  ResampledSource(std::unique_ptr<AudioSource> original, std::uint32_t sampleRate);
  ~ResampledSource() override;

  AudioFormat format() const override { return format_; }
  std::int64_t frames() const override { return frames_; }
  std::size_t read(float* interleaved, std::size_t frames) override;
  void seek(std::int64_t frame) override;

 private:
  void restart();
  void fill();

  std::unique_ptr<AudioSource> original_;
  AudioFormat format_;
  std::int64_t frames_;
  /// `inputStep_` original frames last exactly as long as `outputStep_` of this source.
  std::int64_t inputStep_;
  std::int64_t outputStep_;
  Resampler resampler_;
  std::vector<float> input_;
  std::size_t inputBegin_ = 0;
  std::size_t inputEnd_ = 0;
  bool inputEnded_ = false;
  std::int64_t position_ = 0;
};

/// The source itself if its rate is `sampleRate`, otherwise a resampled one around it.
std::unique_ptr<AudioSource> atSampleRate(std::unique_ptr<AudioSource> source,
                                          std::uint32_t sampleRate);

}  // namespace host
