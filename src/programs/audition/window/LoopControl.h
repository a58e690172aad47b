#pragma once

#include <optional>

#include "host/playback/LoopRange.h"
#include "host/playback/Player.h"

namespace host::audition {

/// The loop of the current file. It is remembered while it is switched off.
class LoopControl {
 public:
  /// Sets the player of another file, which has no loop; null for none. Not owned: set another
  /// before the player is destroyed.
  void setPlayer(Player* player);

  const std::optional<LoopRange>& loop() const { return loop_; }
  bool isOn() const { return isOn_; }

  /// Sets a new loop and switches it on; nothing removes the loop.
  void choose(const std::optional<LoopRange>& loop);
  void toggle();
  /// Moves an edge of the loop to `frame`, and switches the loop on.
  void setStart(std::int64_t frame);
  void setEnd(std::int64_t frame);

 private:
  void apply();

  Player* player_ = nullptr;
  std::optional<LoopRange> loop_;
  bool isOn_ = false;
};

}  // namespace host::audition
