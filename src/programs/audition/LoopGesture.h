#pragma once

#include <cstdint>
#include <optional>

#include "host/playback/LoopRange.h"

namespace host::audition {

/// What a press of the mouse on a waveform takes hold of.
enum class LoopPart { None, Begin, End, Whole };

/// The way from a press of the mouse to a loop: draws a new one, or moves an edge or all of one.
class LoopGesture {
 public:
  /// `loop` is the one that there is. Without `part` a new one is drawn.
  LoopGesture(LoopPart part, std::int64_t pressedAt, const std::optional<LoopRange>& loop,
              std::int64_t length);

  void moveTo(std::int64_t frame);
  /// What the loop would be now.
  const std::optional<LoopRange>& loop() const { return loop_; }

 private:
  const LoopPart part_;
  const std::int64_t pressedAt_;
  const std::optional<LoopRange> before_;
  const std::int64_t length_;
  std::optional<LoopRange> loop_;
};

/// The loop moved as a whole, as far as the file goes.
LoopRange movedLoop(const LoopRange& loop, std::int64_t by, std::int64_t length);
/// The loop with its begin or end put elsewhere. One that would be empty reaches to the file's end
/// or begin instead; nothing where that is empty too.
std::optional<LoopRange> loopFrom(std::int64_t begin, const std::optional<LoopRange>& loop,
                                  std::int64_t length);
std::optional<LoopRange> loopUpTo(std::int64_t end, const std::optional<LoopRange>& loop);

}  // namespace host::audition
