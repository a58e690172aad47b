#pragma once

#include <cstdint>

namespace host {

/// The frames [start, end) of a source, at least one.
struct LoopRange {
  std::int64_t start = 0;
  std::int64_t end = 0;

  std::int64_t length() const { return end - start; }
  bool contains(std::int64_t frame) const { return frame >= start && frame < end; }

  friend bool operator==(const LoopRange&, const LoopRange&) = default;
};

}  // namespace host
