#include "converter/unit/ConverterUnit.h"

#include <algorithm>
#include <array>
#include <stdexcept>
#include <string>
#include <utility>

#include "converter/codec/Encoder.h"
#include "converter/unit/AacConverter.h"

namespace converter {
namespace {

constexpr std::array kSampleRates = {32000.0, 44100.0,  48000.0, 88200.0,
                                     96000.0, 176400.0, 192000.0};
constexpr UInt32 kLargestBlock = 8192;

void validate(const UnitFormat& format) {
  if (std::ranges::find(kSampleRates, format.sampleRate) == kSampleRates.end()) {
    throw std::invalid_argument("converter: a sample rate of " + std::to_string(format.sampleRate) +
                                " Hz is not 32000, 44100, 48000, 88200, 96000, 176400 or 192000");
  }
  if (format.channels != 1 && format.channels != 2) {
    throw std::invalid_argument("converter: " + std::to_string(format.channels) +
                                " channels are neither 1 nor 2");
  }
  if (format.maximumFrames < 1 || format.maximumFrames > kLargestBlock) {
    throw std::invalid_argument("converter: blocks of " + std::to_string(format.maximumFrames) +
                                " frames are not 1 to " + std::to_string(kLargestBlock));
  }
}

}  // namespace

std::unique_ptr<ConverterUnit> ConverterUnit::make(const UnitFormat& format) {
  return make(format, std::chrono::steady_clock::now);
}

std::unique_ptr<ConverterUnit> ConverterUnit::make(const UnitFormat& format,
                                                   realtime::ReadClock readClock) {
  validate(format);
  return std::make_unique<AacConverter>(format, openEncoder, std::move(readClock));
}

bool hasHighEfficiencyEncoder() {
  return encoderAbilities().highEfficiency;
}

}  // namespace converter
