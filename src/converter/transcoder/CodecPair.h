#pragma once

#include <array>
#include <deque>
#include <memory>
#include <span>
#include <utility>
#include <vector>

#include "converter/codec/BitRateMeter.h"
#include "converter/codec/BitStreamSink.h"
#include "converter/codec/Decoder.h"
#include "converter/codec/Encoder.h"
#include "converter/transcoder/AudioBlock.h"
#include "converter/transcoder/SourceHistory.h"

namespace converter {

/// An encoder with its decoder: renders the encoded signal by position in the source, and reads the
/// frames that this takes from the history. One thread at a time.
class CodecPair {
 public:
  /// Can render from `start` on. Throws `std::runtime_error` when the decoder cannot be opened.
  /// `sink` receives the access units; null for none.
  CodecPair(std::unique_ptr<Encoder> encoder, const UnitFormat& unit, Position start,
            BitStreamSink* sink = nullptr);

  /// Stops sending access units to the sink, because another pair does.
  void detachBitStreamSink() { sink_ = nullptr; }

  /// Writes the encoded signal at [position, position + frames), aligned with the source; at most
  /// `kBlockFrames`. Positions never go back. The history must reach `delay + frameLength` beyond
  /// the end, and a frame more for each frame of lookahead.
  void render(const SourceHistory& history, Position position, UInt32 frames,
              std::span<float* const> output);

  /// Of the access units made since priming.
  BitRate bitRate() const { return bitRate_.value(); }

  /// Access units that could not be encoded or decoded, since the last call.
  UInt64 takeFailures() { return std::exchange(failures_, 0); }

  /// Marks what such access units spoilt of the block, and forgets what lies before it.
  void markFailures(AudioBlock& block);

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
  /// Where the output of failed access units starts.
  std::deque<Position> failed_;
  UInt32 lookaheadLeft_;
  /// The decoded samples at [decodedStart_, decodedEnd_).
  std::array<std::vector<float>, kMaximumChannels> decoded_;
  Position decodedStart_;
  Position decodedEnd_;
};

}  // namespace converter
