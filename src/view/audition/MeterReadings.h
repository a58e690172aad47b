#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <string_view>
#include <variant>

#include "contract/ConverterInterface.h"

namespace velk {

/// The layout that a reading belongs to: two channels, or one column for any other channel count.
enum class ReadingSet : std::uint8_t { Stereo, Mono };

constexpr ReadingSet readingSetFor(std::uint32_t numChannels) {
  return numChannels == 2 ? ReadingSet::Stereo : ReadingSet::Mono;
}

/// One reading of the details table and the statistics figure that it shows.
///
/// The letters of the name are signal (s source, e encoded), measure (s sample peak, i inter-sample
/// peak) and channel (l, r, m), with a c added for a clip counter. A peak has the outlets name +
/// "Field" and name + "Indicator", a counter only name + "Field".
struct MeterReading {
  using Peak = float TruePeakStats::*;
  using Count = std::int64_t TruePeakStats::*;

  ReadingSet set;
  std::string_view name;
  PeakStatsChannelSlot record;
  std::variant<Peak, Count> member;
};

inline constexpr std::size_t kMeterReadingCount = 24;
using MeterReadings = std::array<MeterReading, kMeterReadingCount>;

/// All readings, each set in the order in which a poll updates it.
const MeterReadings& meterReadings();

}  // namespace velk
