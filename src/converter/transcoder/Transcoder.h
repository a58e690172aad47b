#pragma once

#include <deque>
#include <memory>
#include <optional>
#include <vector>

#include "converter/transcoder/BlockTranscoder.h"
#include "converter/transcoder/CodecPair.h"
#include "converter/transcoder/SourceHistory.h"

namespace converter {

/// Transcodes at the unit's own rate, which AAC supports.
class Transcoder final : public BlockTranscoder {
 public:
  explicit Transcoder(const UnitFormat& unit, OpenEncoder open = openEncoder);

  void process(const SourceBlock& source, AudioBlock& encoded) override;
  void setBitStreamSink(BitStreamSink* sink) override { sink_ = sink; }
  CodecReport report() const override;
  void clear() override;

 private:
  struct Fade {
    Position end;
    std::unique_ptr<CodecPair> to;
  };

  void restart(const SourceBlock& source);
  std::unique_ptr<CodecPair> openPair(const Setting& setting, Position start);
  void takeFailures(AudioBlock& encoded);
  void beginFade(const SettingChange& change);
  void endFade(AudioBlock& encoded);
  UInt32 renderStep(Position position, Position end, AudioBlock& encoded);
  void mix(std::span<float* const> output, UInt32 frames, Position position) const;

  UnitFormat unit_;
  OpenEncoder open_;
  BitStreamSink* sink_ = nullptr;
  std::vector<float> curve_;
  SourceHistory history_;
  std::optional<Position> expected_;
  Position start_ = 0;
  /// No start of the codec in mid-play is heard from here on.
  Position settled_ = 0;
  std::unique_ptr<CodecPair> pair_;
  std::optional<Fade> fade_;
  std::optional<Setting> inUse_;
  std::optional<Setting> refused_;
  UInt64 failures_ = 0;
  std::deque<SettingChange> changes_;
  std::array<std::vector<float>, kMaximumChannels> fadedIn_;
};

}  // namespace converter
