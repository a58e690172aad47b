#include "host/files/SampleRates.h"

#include <algorithm>

namespace host {

std::uint32_t unitSampleRateFor(std::uint32_t sampleRate) {
  const auto first = [](auto suits) -> std::uint32_t {
    const auto* const found = std::find_if(unitSampleRates.begin(), unitSampleRates.end(), suits);
    return found == unitSampleRates.end() ? 0 : *found;
  };
  if (sampleRate > unitSampleRates.back()) {
    // Half or a quarter keeps 352.8 and 705.6 kHz in their own family of rates.
    const auto part =
        first([=](std::uint32_t rate) { return rate > 96000 && sampleRate % rate == 0; });
    return part != 0 ? part : unitSampleRates.back();
  }
  // One and a half times the rate is preferred to twice: 64 kHz becomes 96 rather than 192.
  if (first([=](std::uint32_t rate) { return rate == sampleRate; }) != 0) return sampleRate;
  const auto half = first([=](std::uint32_t rate) { return rate * 2 == sampleRate * 3; });
  if (half != 0) return half;
  const auto multiple = first([=](std::uint32_t rate) { return rate % sampleRate == 0; });
  if (multiple != 0) return multiple;
  return first([=](std::uint32_t rate) { return rate >= sampleRate; });
}

}  // namespace host
