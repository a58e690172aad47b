#pragma once

#include <chrono>
#include <random>
#include <thread>

#include "converter/unit/ConverterUnit.h"

/// Does at random what hosts and views do to a unit, each step from a seed: settings, presets,
/// monitor, test flag, resets of the statistics, and reading everything.
class RandomOperator {
 public:
  RandomOperator(converter::ConverterUnit& unit, unsigned seed) : unit_(unit), random_(seed) {}

  /// One step. Not on the audio thread.
  void operate();

  /// Steps without end on a thread of its own, as long as the object returned lives.
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
