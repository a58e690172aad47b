#pragma once

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>
#include <optional>

/// The vocabulary of an encoder setting: what the values of a converter unit's three parameters
/// mean. Values travel as 32-bit floats that hold whole numbers and are read by truncation toward
/// zero.
namespace velk {

/// AAC object type: "AAC", "AAC HE", "AAC HEv2".
enum class Format : std::uint8_t { lc, he, heV2 };
/// Bit-rate strategy: "ABR", "VBRC", "VBR".
enum class Strategy : std::uint8_t { abr, constrainedVbr, vbr };

/// The same as parameter values.
inline constexpr float kFormat_AAC = 0.0F;
inline constexpr float kFormat_HE = 1.0F;
inline constexpr float kFormat_HEv2 = 2.0F;
inline constexpr float kStrategy_ABR = 0.0F;
inline constexpr float kStrategy_VBRC = 1.0F;
inline constexpr float kStrategy_VBR = 2.0F;

/// kbit/s by rate index.
inline constexpr std::array<std::uint32_t, 17> bitRates = {16, 20,  24,  32,  40,  48,  56,  64, 80,
                                                           96, 128, 160, 192, 224, 256, 288, 320};

/// Name of a value that stands for nothing.
inline constexpr const char* kNoName = "-";

constexpr const char* nameOf(Format format) {
  constexpr std::array names = {"AAC", "AAC HE", "AAC HEv2"};
  return names[static_cast<std::size_t>(format)];
}
constexpr const char* nameOf(Strategy strategy) {
  constexpr std::array names = {"ABR", "VBRC", "VBR"};
  return names[static_cast<std::size_t>(strategy)];
}

/// The whole number in a parameter value; nothing where no unsigned 32-bit number can hold it, a
/// NaN and the infinities included.
constexpr std::optional<std::uint32_t> wholeNumberOf(float value) {
  constexpr float kBeyondUInt32 = 4294967296.0F;
  // Written so that a NaN fails.
  if (!(value > -1.0F && value < kBeyondUInt32)) return std::nullopt;
  return static_cast<std::uint32_t>(value);
}

/// The format or strategy that a parameter value stands for, if any.
constexpr std::optional<Format> formatOf(float value) {
  const auto code = wholeNumberOf(value);
  if (!code || *code > static_cast<std::uint32_t>(Format::heV2)) return std::nullopt;
  return static_cast<Format>(*code);
}
constexpr std::optional<Strategy> strategyOf(float value) {
  const auto code = wholeNumberOf(value);
  if (!code || *code > static_cast<std::uint32_t>(Strategy::vbr)) return std::nullopt;
  return static_cast<Strategy>(*code);
}

/// kbit/s of a rate index; nothing outside the list. Not truncated first: 16.5 is no rate.
constexpr std::optional<std::uint32_t> bitRateOf(float index) {
  if (!(index >= 0.0F && index <= static_cast<float>(bitRates.size() - 1))) return std::nullopt;
  return bitRates[static_cast<std::size_t>(index)];
}
/// The index of a bit rate in kbit/s; nothing when the list does not have it.
constexpr std::optional<float> rateIndexOf(std::uint32_t kbps) {
  const auto* const found = std::find(bitRates.begin(), bitRates.end(), kbps);
  if (found == bitRates.end()) return std::nullopt;
  return static_cast<float>(found - bitRates.begin());
}

/// What a unit's three parameters ask for: the values exactly as written, so that two settings are
/// equal when their values are. What the encoder then really does is the unit's business.
struct EncoderSetting {
  float format = kFormat_AAC;
  float strategy = kStrategy_ABR;
  /// VBR: the encoder's quality. Otherwise an index into `bitRates`.
  float rateOrQuality = 0.0F;

  friend bool operator==(const EncoderSetting&, const EncoderSetting&) = default;

  constexpr bool hasQuality() const { return strategy == kStrategy_VBR; }
  /// kbit/s; nothing when there is a quality, or when the index is none.
  constexpr std::optional<std::uint32_t> rateKbps() const {
    return hasQuality() ? std::nullopt : bitRateOf(rateOrQuality);
  }
  /// Nothing when there is a rate, or when the value is no quality.
  constexpr std::optional<std::uint32_t> quality() const {
    return hasQuality() ? wholeNumberOf(rateOrQuality) : std::nullopt;
  }
};

}  // namespace velk
