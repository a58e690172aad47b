#pragma once

#include <optional>

#include "host/playback/LoopRange.h"
#include "host/playback/Player.h"

namespace host::audition {

/// The loop of the file that plays. It can be switched off and is remembered.
class LoopControl {
 public:
  /// Another file, which has no loop; null for none. To be called before the player goes.
  void setPlayer(Player* player);

  const std::optional<LoopRange>& loop() const { return loop_; }
  bool isOn() const { return isOn_; }

  /// Switches a new loop on; nothing takes it away.
  void choose(const std::optional<LoopRange>& loop);
  void toggle();
  /// Puts an edge of the loop there.
  void beginAt(std::int64_t frame);
  void endAt(std::int64_t frame);

 private:
  void apply();

  Player* player_ = nullptr;
  std::optional<LoopRange> loop_;
  bool isOn_ = false;
};

}  // namespace host::audition
