#include "converter/codec/Setting.h"

#include <algorithm>
#include <cmath>

namespace converter {
namespace {

/// The value truncated to an integer and clamped to 0...`highest`.
std::uint32_t codeOf(float value, std::uint32_t highest) {
  if (!(value > 0)) return 0;
  return static_cast<std::uint32_t>(std::min(value, static_cast<float>(highest)));
}

/// What is left to the core encoder: half the sample rate with spectral band replication, one
/// channel with parametric stereo. The limits follow from it.
struct Core {
  double sampleRate;
  std::uint32_t channels;
};

Core coreOf(Format format, const UnitFormat& unit) {
  return {format == Format::lc ? unit.sampleRate : unit.sampleRate / 2,
          format == Format::heV2 ? 1U : unit.channels};
}

constexpr double kCoreFrameLength = 1024;

/// The size of an AAC decoder's input buffer (ISO/IEC 14496-3).
constexpr double kMostBitsPerChannelAndFrame = 6144;

std::uint32_t highestRate(Format format, const UnitFormat& unit) {
  const Core core = coreOf(format, unit);
  return static_cast<std::uint32_t>(kMostBitsPerChannelAndFrame * core.channels * core.sampleRate /
                                    kCoreFrameLength);
}

/// The lowest rates that FDK AAC 2.0.2 does not raise by itself, as reading them back shows.
std::uint32_t lowestRate(Format format, const UnitFormat& unit) {
  const Core core = coreOf(format, unit);
  if (format == Format::lc) {
    const double bitsPerFrame = core.channels == 1 ? 248 : 288;
    return static_cast<std::uint32_t>(std::ceil(bitsPerFrame * core.sampleRate / kCoreFrameLength));
  }
  // The lowest rates in the tuning tables of band replication.
  if (core.channels == 1) {
    if (unit.sampleRate < 44100) return 8000;
    if (unit.sampleRate < 88200) return 12000;
    return unit.sampleRate < 96000 ? 24000 : 32000;
  }
  if (unit.sampleRate < 88200) return 16000;
  return unit.sampleRate < 96000 ? 32000 : 36000;
}

/// Maps the range of qualities evenly to the five modes.
std::uint8_t vbrModeOf(float quality) {
  return static_cast<std::uint8_t>(1 +
                                   codeOf(quality, kHighestQuality) * 5 / (kHighestQuality + 1));
}

}  // namespace

Format highestFormat(const EncoderAbilities& abilities, UInt32 channels) {
  if (!abilities.highEfficiency) return Format::lc;
  return channels == 1 ? Format::he : Format::heV2;
}

Setting nearestSetting(const velk::EncoderSetting& asked, const UnitFormat& unit,
                       const EncoderAbilities& abilities) {
  const auto highest = static_cast<std::uint32_t>(highestFormat(abilities, unit.channels));
  Setting setting;
  setting.format = static_cast<Format>(codeOf(asked.format, highest));
  setting.strategy =
      static_cast<Strategy>(codeOf(asked.strategy, static_cast<std::uint32_t>(Strategy::vbr)));
  if (setting.strategy == Strategy::vbr) {
    setting.vbrMode = vbrModeOf(asked.rateOrQuality);
    return setting;
  }
  const std::uint32_t rate =
      1000 * velk::bitRates[codeOf(asked.rateOrQuality, velk::bitRates.size() - 1)];
  setting.bitRate =
      std::clamp(rate, lowestRate(setting.format, unit), highestRate(setting.format, unit));
  return setting;
}

EffectiveSetting effectiveSetting(const Setting& setting) {
  return {static_cast<UInt32>(setting.format), static_cast<UInt32>(setting.strategy),
          setting.bitRate, setting.vbrMode};
}

}  // namespace converter
