#include "converter/stream/EncodedReader.h"

#include <algorithm>

namespace converter {

UInt32 EncodedReader::read(Position position, UInt32 frames, float* const* output, UInt32 channels,
                           bool wait) {
  UInt32 missing = 0;
  for (UInt32 done = 0; done < frames;) {
    const Position at = position + done;
    UInt32 step = frames - done;
    const AudioBlock* block = at < 0 ? nullptr : blockAt(at, wait);
    const bool here = block != nullptr && block->validFrom <= at;
    if (here) {
      step = static_cast<UInt32>(std::min<Position>(step, block->end() - at));
    } else if (at < 0) {
      step = static_cast<UInt32>(std::min<Position>(step, -at));
    } else {
      if (block != nullptr) {
        step = static_cast<UInt32>(std::min<Position>(step, block->validFrom - at));
      }
      missing += step;
    }
    for (UInt32 channel = 0; channel < channels; ++channel) {
      float* to = output[channel] + done;
      if (here) {
        std::copy_n(block->planes[channel].begin() + (at - block->position), step, to);
      } else {
        std::fill_n(to, step, 0.0F);
      }
    }
    done += step;
  }
  return missing;
}

/// The first block that ends after `position`, or null.
const AudioBlock* EncodedReader::blockAt(Position position, bool wait) {
  auto& queue = worker_.encoded();
  const auto find = [&] {
    const AudioBlock* block = queue.front();
    while (block != nullptr && block->end() <= position) {
      queue.pop();
      block = queue.front();
    }
    return block;
  };
  if (!wait) return find();
  const AudioBlock* block = nullptr;
  worker_.waitUntil([&] {
    // In this order: the worker pushes its result before it removes the source block.
    const bool idle = worker_.source().empty();
    block = find();
    return block != nullptr || idle;
  });
  return block;
}

}  // namespace converter
