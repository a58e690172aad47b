#pragma once

#include <array>
#include <memory>
#include <span>
#include <utility>
#include <vector>

#include "converter/codec/BitRateMeter.h"
#include "converter/codec/BitStreamSink.h"
#include "converter/codec/Decoder.h"
#include "converter/codec/Encoder.h"
#include "converter/transcoder/SourceHistory.h"

namespace converter {

/// An encoder and its decoder as one source of samples: asked for a stretch of the encoded signal
/// by position in the source, it takes from the history the frames that this needs. One thread at a
/// time.
class CodecPair {
 public:
  /// Good for stretches from `start` on. Throws `std::runtime_error` when a codec refuses. `sink`
  /// is shown the access units, unless it is null.
  CodecPair(std::unique_ptr<Encoder> encoder, const UnitFormat& unit, Position start,
            BitStreamSink* sink = nullptr);

  /// The sink belongs to another pair from now on.
  void leaveBitStreamSink() { sink_ = nullptr; }

  /// Writes the encoded signal at [position, position + frames), at most `kBlockFrames`, in the
  /// source's own time. Positions only ever rise. The history has to reach `delay + frameLength`
  /// further, one frame more for each of lookahead.
  void render(const SourceHistory& history, Position position, UInt32 frames,
              std::span<float* const> output);

  /// Of the access units since priming.
  BitRate bitRate() const { return bitRate_.value(); }

  /// Access units that could not be made or decoded, since the last call.
  UInt64 takeFailures() { return std::exchange(failures_, 0); }

 private:
  void codeFrame(const SourceHistory& history);
  void keepFrom(Position position);

  std::unique_ptr<Encoder> encoder_;
  CodecTiming timing_;
  std::unique_ptr<Decoder> decoder_;
  BitRateMeter bitRate_;
  UInt32 channels_;
  Position nextFrame_;
  Position start_;
  BitStreamSink* sink_;
  UInt64 failures_ = 0;
  UInt32 lookaheadLeft_;
  /// The decoded samples at [decodedBegin_, decodedEnd_).
  std::array<std::vector<float>, kMaximumChannels> decoded_;
  Position decodedBegin_;
  Position decodedEnd_;
};

}  // namespace converter
