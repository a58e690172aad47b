#pragma once

#include "ui/PopUpButton.h"

namespace velk {

/// One encoder configuration, as menu items carry it: compared by value.
inline constexpr const char* kFormatEntry = "Format";
inline constexpr const char* kStrategyEntry = "Strategy";
/// The raw value, a rate index or a quality.
inline constexpr const char* kRateQualityEntry = "RateQuality";

inline ui::Dictionary encoderSetting(float format, float strategy, float rateQuality) {
  return {{kFormatEntry, format}, {kStrategyEntry, strategy}, {kRateQualityEntry, rateQuality}};
}

}  // namespace velk
