#pragma once

#include <cstdint>
#include <random>

namespace host::demo_mix {

/// White noise from -1 to 1, the same for the same seed on every machine.
class Noise {
 public:
  explicit Noise(std::uint32_t seed) : random_(seed) {}

  double next() { return static_cast<double>(random_()) / 2147483648.0 - 1; }

 private:
  std::mt19937 random_;
};

}  // namespace host::demo_mix
