#include "programs/audition/window/LoopControl.h"

#include "programs/audition/waveform/LoopGesture.h"

namespace host::audition {

void LoopControl::setPlayer(Player* player) {
  player_ = player;
  loop_.reset();
  isOn_ = false;
}

void LoopControl::choose(const std::optional<LoopRange>& loop) {
  if (player_ == nullptr) return;
  loop_ = loop;
  isOn_ = loop.has_value();
  apply();
}

void LoopControl::toggle() {
  if (player_ == nullptr || !loop_) return;
  isOn_ = !isOn_;
  apply();
}

void LoopControl::setStart(std::int64_t frame) {
  if (player_ != nullptr) choose(loopFrom(frame, loop_, player_->length()));
}

void LoopControl::setEnd(std::int64_t frame) {
  if (player_ != nullptr) choose(loopUpTo(frame, loop_));
}

void LoopControl::apply() {
  player_->setLoop(isOn_ ? loop_ : std::nullopt);
  // The player clips the loop to the source.
  if (!isOn_) return;
  loop_ = player_->loop();
  isOn_ = loop_.has_value();
}

}  // namespace host::audition
