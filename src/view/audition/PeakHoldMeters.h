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

/// Values of a lamp.
inline constexpr int kLampDark = 0;
inline constexpr int kLampLit = 2;

/// The details table: peak-hold readings with clip counters. A control is written only when a held
/// value rises and when the controls are cleared. Main thread only.
class PeakHoldMeters {
 public:
  /// Every held peak starts at the floor, every held count at 0.
  PeakHoldMeters() { clearHeldValues(); }

  void declareOutlets(ui::Connections& connections);

  /// Raises the readings of one set to the figures of the block. Allocates only for a count that
  /// rises.
  void poll(const PeakStatistics& block, ReadingSet set, const ui::Localization& localization);

  /// Takes the held values of both sets back.
  void clearHeldValues();
  /// Shows the readings of one set as cleared.
  void clearControls(ReadingSet set);

 private:
  /// What belongs to the row of the table at the same place. A counter has no indicator.
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
