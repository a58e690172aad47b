#include "host/SampleRates.h"

#include <algorithm>

namespace host {

std::uint32_t unitSampleRateFor(std::uint32_t sampleRate) {
  const auto first = [](auto suits) -> std::uint32_t {
    const auto* const found = std::find_if(unitSampleRates.begin(), unitSampleRates.end(), suits);
    return found == unitSampleRates.end() ? 0 : *found;
  };
  if (sampleRate > unitSampleRates.back()) {
    // Half, a quarter or an eighth keeps 176.4 and 352.8 kHz in their own family.
    for (const auto rate : {96000U, 88200U}) {
      if (sampleRate % rate == 0) return rate;
    }
    return unitSampleRates.back();
  }
  const auto multiple = first([=](std::uint32_t rate) { return rate % sampleRate == 0; });
  if (multiple != 0) return multiple;
  const auto half = first([=](std::uint32_t rate) { return rate * 2 == sampleRate * 3; });
  if (half != 0) return half;
  return first([=](std::uint32_t rate) { return rate >= sampleRate; });
}

}  // namespace host
