#pragma once

#include <memory>
#include <optional>

#include "converter/codec/BitStreamSink.h"
#include "converter/codec/Encoder.h"
#include "converter/transcoder/SourceBlock.h"

namespace converter {

/// How the codec does.
struct CodecReport {
  /// Of the setting last taken up.
  BitRate bitRate{0, 0};
  /// What the codec runs with; nothing while no codec can be opened.
  std::optional<Setting> inUse;
  /// The last setting asked for, where no codec could be opened for it.
  std::optional<Setting> refused;
  /// Since the transcoder was made: codecs that could not be opened, and access units that could
  /// not be made or decoded and are silence.
  UInt64 failures = 0;
};

/// Turns blocks of the source into blocks of the encoded signal, and one setting into another. What
/// comes out depends only on the blocks that went in. Worker thread.
class BlockTranscoder {
 public:
  BlockTranscoder() = default;
  BlockTranscoder(const BlockTranscoder&) = delete;
  BlockTranscoder& operator=(const BlockTranscoder&) = delete;
  virtual ~BlockTranscoder() = default;

  /// Takes the next block of the source and writes the block of the encoded signal that has become
  /// complete, `encodedBehindSource` before it. When blocks are missing in between, the codec
  /// starts anew, and the encoded signal begins where the source begins again, as it does with the
  /// first block.
  virtual void process(const SourceBlock& source, AudioBlock& encoded) = 0;

  /// Takes the access units from the next encoder on. Null for none.
  virtual void setBitStreamSink(BitStreamSink* sink) = 0;

  virtual CodecReport report() const = 0;

  /// Forgets all audio.
  virtual void clear() = 0;
};

/// The transcoder that suits the unit's sample rate.
std::unique_ptr<BlockTranscoder> makeTranscoder(const UnitFormat& unit, OpenEncoder open);

}  // namespace converter
