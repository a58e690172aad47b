#pragma once

#include <cstdint>

namespace host {

/// Frames of a source from `begin` up to `end`, one at least.
struct LoopRange {
  std::int64_t begin = 0;
  std::int64_t end = 0;

  std::int64_t length() const { return end - begin; }
  bool contains(std::int64_t frame) const { return frame >= begin && frame < end; }

  friend bool operator==(const LoopRange&, const LoopRange&) = default;
};

}  // namespace host
