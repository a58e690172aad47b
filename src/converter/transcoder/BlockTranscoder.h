#pragma once

#include <memory>
#include <optional>

#include "converter/codec/BitStreamSink.h"
#include "converter/codec/Encoder.h"
#include "converter/transcoder/SourceBlock.h"

namespace converter {

/// The state of the codec.
struct CodecReport {
  /// Of the setting last adopted.
  BitRate bitRate{0, 0};
  /// The setting that the codec runs with; empty while no codec can be opened.
  std::optional<Setting> inUse;
  /// The setting last requested, if no codec could be opened for it.
  std::optional<Setting> refused;
  /// Since the transcoder was made: codecs that could not be opened, plus access units that could
  /// not be encoded or decoded and were replaced by silence.
  UInt64 failures = 0;
};

/// Turns blocks of the source into blocks of the encoded signal, and changes settings in mid-play.
/// The output depends on nothing but the blocks passed in. Worker thread.
class BlockTranscoder {
 public:
  BlockTranscoder() = default;
  BlockTranscoder(const BlockTranscoder&) = delete;
  BlockTranscoder& operator=(const BlockTranscoder&) = delete;
  virtual ~BlockTranscoder() = default;

  /// Takes the next block of the source and writes the block of the encoded signal that it
  /// completes, `encodedBehindSource` before it. If blocks are missing in between, the codec is
  /// restarted, and the encoded signal starts again where the source does, as at the first block.
  virtual void process(const SourceBlock& source, AudioBlock& encoded) = 0;

  /// Sends the access units of every encoder opened from now on to `sink`; null for none.
  virtual void setBitStreamSink(BitStreamSink* sink) = 0;

  virtual CodecReport report() const = 0;

  /// Discards all audio; failures stay counted.
  virtual void clear() = 0;
};

/// The transcoder that suits the unit's sample rate.
std::unique_ptr<BlockTranscoder> makeTranscoder(const UnitFormat& unit, OpenEncoder open);

}  // namespace converter
