#pragma once

#include "contract/EncoderSetting.h"
#include "ui/PopUpButton.h"

namespace velk {

/// The key under which a menu item carries an encoder setting. Keys are compared by value, so two
/// settings have the same key when their values are the same.
inline constexpr const char* kFormatEntry = "Format";
inline constexpr const char* kStrategyEntry = "Strategy";
inline constexpr const char* kRateQualityEntry = "RateQuality";

inline ui::Dictionary settingKey(const EncoderSetting& setting) {
  return {{kFormatEntry, setting.format},
          {kStrategyEntry, setting.strategy},
          {kRateQualityEntry, setting.rateOrQuality}};
}

/// The setting of a key.
inline EncoderSetting settingOf(const ui::Dictionary& key) {
  return {key.at(kFormatEntry), key.at(kStrategyEntry), key.at(kRateQualityEntry)};
}

}  // namespace velk
