#include "converter/stream/EncodedReader.h"

#include <algorithm>

namespace converter {

EncodedReader::EncodedReader(Worker& worker, UInt32 maximumFrames) : worker_(worker) {
  // At most one for each grain that the read touches, and two more where a block starts or ends.
  const std::size_t blocks = maximumFrames / kBlockFrames + 2;
  stretches_.reserve(maximumFrames / AudioBlock::kGrain + 2 + 2 * blocks);
}

Stretches EncodedReader::read(Position position, UInt32 frames, float* const* output,
                              UInt32 channels, Patience patience) {
  stretches_.clear();
  for (UInt32 done = 0; done < frames;) {
    const Position at = position + done;
    Position step = frames - done;
    const AudioBlock* block = at < 0 ? nullptr : blockAt(at, patience);
    const bool isHere = block != nullptr && block->validFrom <= at;
    if (isHere) {
      const Position offset = at - block->position;
      const bool isSound = block->isSound(offset);
      Position end = offset;
      while (end < kBlockFrames && block->isSound(end) == isSound) {
        end += AudioBlock::kGrain - end % AudioBlock::kGrain;
      }
      step = std::min(step, end - offset);
      note(static_cast<std::size_t>(step), isSound ? Soundness::sound : Soundness::unsound);
    } else if (at < 0) {
      step = std::min(step, -at);
      note(static_cast<std::size_t>(step), Soundness::sound);
    } else {
      if (block != nullptr) step = std::min(step, block->validFrom - at);
      note(static_cast<std::size_t>(step), Soundness::missing);
    }
    for (UInt32 channel = 0; channel < channels; ++channel) {
      float* to = output[channel] + done;
      if (isHere) {
        std::copy_n(block->planes[channel].begin() + (at - block->position), step, to);
      } else {
        std::fill_n(to, step, 0.0F);
      }
    }
    done += static_cast<UInt32>(step);
  }
  return stretches_;
}

void EncodedReader::note(std::size_t frames, Soundness soundness) {
  if (!stretches_.empty() && stretches_.back().soundness == soundness) {
    stretches_.back().frames += frames;
  } else {
    stretches_.push_back({frames, soundness});
  }
}

/// The first block that ends after `position`, or null.
const AudioBlock* EncodedReader::blockAt(Position position, Patience patience) {
  auto& queue = worker_.encoded();
  const auto find = [&] {
    const AudioBlock* block = queue.front();
    while (block != nullptr && block->end() <= position) {
      queue.pop();
      block = queue.front();
    }
    return block;
  };
  const AudioBlock* block = nullptr;
  const auto isDone = [&] {
    // In this order: the worker pushes its result before it removes the source block.
    const bool idle = worker_.source().empty();
    block = find();
    return block != nullptr || idle;
  };
  worker_.waitUntil(isDone, patience);
  return block;
}

}  // namespace converter
