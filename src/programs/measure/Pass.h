#pragma once

#include <array>
#include <cstdint>
#include <memory>
#include <vector>

#include "contract/ConverterInterface.h"
#include "converter/unit/ConverterUnit.h"
#include "host/files/AudioSource.h"
#include "host/unit/ConverterSetup.h"
#include "host/unit/Readings.h"
#include "programs/measure/EncoderChoice.h"

namespace host::measure {

/// One run of a source through the converter, from its first sample until its last one has left the
/// decoder, as fast as it goes. One thread at a time.
class Pass {
 public:
  /// The encoder is given the source times `gain`. `sink` is shown the access units, all of them
  /// before `finish` returns; it may be null. Throws `Failure` when the encoder cannot do what was
  /// chosen.
  Pass(AudioSource& source, const EncoderChoice& choice, float gain,
       converter::BitStreamSink* sink);

  /// Frames of a step from now on, 1 to `unitBlockFrames`. The readings do not depend on it.
  void setBlockFrames(std::uint32_t frames) { blockFrames_ = frames; }
  /// Renders the next block. False when there was none left.
  bool step();

  /// Frames that the last step took from the source, one plane per channel.
  const float* const* input() const { return input_.data(); }
  std::uint32_t inputFrames() const { return inputFrames_; }
  /// Frames taken so far; the source's true length after the last step.
  std::int64_t taken() const { return taken_; }
  /// Frames that have left the decoder and were metered.
  std::int64_t metered() const;
  /// Peaks and counts so far.
  velk::PeakStatistics peaks() const;

  /// After the last step: meters the end and tells the readings; `file` stays empty. Throws
  /// `Failure` when the encoder gave up on the way.
  Readings finish();

  AudioUnit unit() { return unit_.get(); }

 private:
  void take(std::uint32_t frames);

  AudioSource& source_;
  AudioFormat format_;
  float gain_;
  std::unique_ptr<converter::ConverterUnit> unit_;
  std::vector<float> interleaved_;
  std::array<std::vector<float>, 2> planes_;
  std::array<std::vector<float>, 2> encoded_;
  std::array<const float*, 2> input_{};
  std::uint32_t blockFrames_ = unitBlockFrames;
  std::uint32_t inputFrames_ = 0;
  bool sourceEnded_ = false;
  std::int64_t taken_ = 0;
  std::int64_t rendered_ = 0;
};

}  // namespace host::measure
