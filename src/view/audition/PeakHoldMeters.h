#pragma once

#include <array>
#include <cstdint>
#include <functional>

#include "ui/Connections.h"
#include "view/audition/MeterReadings.h"

namespace ui {
class Localization;
}

namespace velk {

/// Level at which held peaks start, dB relative to full scale.
inline constexpr float kMeterFloor = -60.0F;

/// States of a lamp.
inline constexpr int kLampDark = 0;
inline constexpr int kLampLit = 2;

/// The details table: peak-hold readings with clip counters. A control is written only when a held
/// value rises and when the controls are cleared. Main thread only.
class PeakHoldMeters {
 public:
  /// Every held peak starts at the floor, every held count at 0.
  PeakHoldMeters() { clearHeldValues(); }

  void declareOutlets(ui::Connections& connections);

  /// Raises the readings of one set to the block's figures. Allocates only when a count rises.
  void poll(const PeakStatistics& block, ReadingSet set, const ui::Localization& localization);

  /// Resets the held values of both sets.
  void clearHeldValues();
  /// Clears the controls of one set.
  void clearControls(ReadingSet set);

 private:
  /// The state of the `meterReadings` entry at the same index. A counter has no indicator.
  struct Reading {
    float peak = kMeterFloor;
    std::int64_t count = 0;
    ui::TextField* field = nullptr;
    ui::LevelIndicator* indicator = nullptr;
  };

  static void raisePeak(Reading& reading, float peak);
  static void raiseCount(Reading& reading, std::int64_t count,
                         const ui::Localization& localization);

  std::array<Reading, kMeterReadingCount> readings_;
};

}  // namespace velk
