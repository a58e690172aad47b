#pragma once

#include <cstdint>
#include <optional>

#include "host/playback/LoopRange.h"

namespace host::audition {

/// The part of a loop that a mouse press grabs.
enum class LoopPart { None, Start, End, Whole };

/// Follows the mouse from its press: draws a new loop, or moves an edge or the whole of one.
class LoopGesture {
 public:
  /// `loop` is the current loop. With `LoopPart::None` a new one is drawn.
  LoopGesture(LoopPart part, std::int64_t pressedAt, const std::optional<LoopRange>& loop,
              std::int64_t length);

  void moveTo(std::int64_t frame);
  /// The loop if the mouse were released now.
  const std::optional<LoopRange>& loop() const { return loop_; }

 private:
  const LoopPart part_;
  const std::int64_t pressedAt_;
  const std::optional<LoopRange> before_;
  const std::int64_t length_;
  std::optional<LoopRange> loop_;
};

/// The loop moved as a whole, within the file.
LoopRange movedLoop(const LoopRange& loop, std::int64_t by, std::int64_t length);
/// The loop with its start or end moved. A loop that would be empty extends to the file's end or
/// start instead; nothing if that is empty, too.
std::optional<LoopRange> loopFrom(std::int64_t start, const std::optional<LoopRange>& loop,
                                  std::int64_t length);
std::optional<LoopRange> loopUpTo(std::int64_t end, const std::optional<LoopRange>& loop);

}  // namespace host::audition
