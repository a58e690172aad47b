#pragma once

#include <deque>
#include <vector>

#include "converter/transcoder/RateChange.h"
#include "converter/transcoder/Transcoder.h"

namespace converter {

/// Transcodes for units above the highest rate of AAC: halves the rate before the codec and doubles
/// it after.
class ResampledTranscoder final : public BlockTranscoder {
 public:
  ResampledTranscoder(const UnitFormat& unit, OpenEncoder open);

  void process(const SourceBlock& source, AudioBlock& encoded) override;
  void setBitStreamSink(BitStreamSink* sink) override { codec_.setBitStreamSink(sink); }
  CodecReport report() const override { return codec_.report(); }
  void clear() override;

 private:
  void restart(const SourceBlock& source);
  void takeHalved(const float* const* planes, std::size_t frames);
  void codeBlock();
  void noteUnsound();
  void writeEncoded(AudioBlock& encoded);

  UInt32 channels_;
  Position behind_;
  Transcoder codec_;
  std::array<std::array<float, kBlockFrames>, kMaximumChannels> resamplable_{};
  RateChange down_;
  RateChange up_;
  std::optional<Position> expected_;
  /// Where the encoded signal starts, at the unit's rate.
  Position start_ = 0;
  /// Changes not yet passed to the codec; at the codec's rate.
  std::deque<SettingChange> changes_;
  /// The block being filled, at the codec's rate.
  SourceBlock halved_;
  UInt32 halvedFrames_ = 0;
  AudioBlock coded_;
  /// The encoded signal at the unit's rate from `doubledStart_` on.
  std::array<std::vector<float>, kMaximumChannels> doubled_;
  Position doubledStart_ = 0;
  /// What of it is unsound (see `AudioBlock::unsound`), in order.
  struct Stretch {
    Position from;
    Position to;
  };
  std::deque<Stretch> unsound_;
};

}  // namespace converter
