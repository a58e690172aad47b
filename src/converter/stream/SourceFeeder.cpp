#include "converter/stream/SourceFeeder.h"

#include <algorithm>

namespace converter {

void SourceFeeder::request(const Setting& setting) {
  if (setting == setting_) return;
  if (position_ == 0) {
    setting_ = setting;
    return;
  }
  if (position_ < nextChange_) return;
  nextChange_ = position_ + accessUnit_;
  change_ = SettingChange{position_, setting};
}

void SourceFeeder::feed(const float* const* input, UInt32 channels, UInt32 frames,
                        Patience patience) {
  for (UInt32 done = 0; done < frames;) {
    const auto offset = static_cast<UInt32>(position_ % kBlockFrames);
    if (offset == 0) startBlock(patience);
    const UInt32 step = std::min(frames - done, kBlockFrames - offset);
    if (block_ != nullptr) {
      for (UInt32 channel = 0; channel < channels; ++channel) {
        std::copy_n(input[channel] + done, step, block_->audio.planes[channel].begin() + offset);
      }
      if (change_) block_->change = change_;
    }
    if (change_) setting_ = change_->setting;
    change_.reset();
    position_ += step;
    done += step;
    if (block_ != nullptr && offset + step == kBlockFrames) {
      worker_.source().push();
      if (position_ % accessUnit_ == 0) worker_.wake();
      block_ = nullptr;
    }
  }
}

void SourceFeeder::clear() {
  position_ = 0;
  nextChange_ = 0;
  change_.reset();
  block_ = nullptr;
  dropping_ = false;
}

void SourceFeeder::startBlock(Patience patience) {
  auto& queue = worker_.source();
  // Each gap costs the worker a restart of its codec, so let an overloaded one catch up first.
  const auto hasRoom = [&] { return dropping_ ? queue.empty() : queue.claim() != nullptr; };
  worker_.waitUntil(hasRoom, patience);
  if (!hasRoom()) {
    dropping_ = true;
    return;
  }
  dropping_ = false;
  block_ = queue.claim();
  block_->audio.position = position_;
  block_->audio.validFrom = position_;
  block_->setting = setting_;
  block_->change.reset();
}

}  // namespace converter
