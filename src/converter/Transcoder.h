#pragma once

#include <deque>
#include <memory>
#include <optional>
#include <vector>

#include "converter/CodecPair.h"
#include "converter/SourceBlock.h"
#include "converter/SourceHistory.h"

namespace converter {

/// Turns blocks of the source into blocks of the encoded signal, and one setting into another. What
/// comes out depends only on the blocks that went in. Worker thread.
class Transcoder {
 public:
  explicit Transcoder(const UnitFormat& unit);

  /// Takes the next block of the source and writes the block of the encoded signal that has become
  /// complete, `kEncodedBehindSource` before it. When blocks are missing in between, the codec
  /// starts anew, and the encoded signal begins where the source begins again, as it does with the
  /// first block.
  void process(const SourceBlock& source, AudioBlock& encoded);

  /// Takes the access units from the next encoder on. Null for none.
  void setBitStreamSink(BitStreamSink* sink) { sink_ = sink; }

  /// Of the setting last taken up.
  BitRate bitRate() const;

  /// Forgets all audio.
  void clear();

 private:
  struct Fade {
    Position end;
    std::unique_ptr<CodecPair> to;
  };

  void restart(const SourceBlock& source);
  void beginFade(const SettingChange& change);
  UInt32 renderStep(Position position, Position end, AudioBlock& encoded);
  void mix(std::span<float* const> output, UInt32 frames, Position position) const;

  UnitFormat unit_;
  BitStreamSink* sink_ = nullptr;
  std::vector<float> curve_;
  SourceHistory history_;
  std::optional<Position> expected_;
  Position begin_ = 0;
  std::unique_ptr<CodecPair> pair_;
  std::optional<Fade> fade_;
  std::deque<SettingChange> changes_;
  std::array<std::vector<float>, kMaximumChannels> fadedIn_;
};

}  // namespace converter
