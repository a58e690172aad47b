#pragma once

#include <chrono>
#include <random>
#include <thread>

#include "converter/unit/ConverterUnit.h"

/// Operates a unit at random as hosts and views do, reproducibly from a seed: settings, presets,
/// monitor, test flag, statistics resets, and reading everything.
class RandomOperator {
 public:
  RandomOperator(converter::ConverterUnit& unit, unsigned seed) : unit_(unit), random_(seed) {}

  /// One step. Not on the audio thread.
  void operate();

  /// Operates continuously on a thread of its own until the returned thread is destroyed.
  [[nodiscard]] std::jthread operateAllTheTime(
      std::chrono::microseconds pause = std::chrono::microseconds(0));

 private:
  std::uint32_t below(std::uint32_t count) {
    return std::uniform_int_distribution<std::uint32_t>(0, count - 1)(random_);
  }
  void readEverything();

  converter::ConverterUnit& unit_;
  std::mt19937 random_;
};
