#include "view/audition/PeakHoldMeters.h"

#include <span>
#include <string>
#include <vector>

#include "ui/Localization.h"

namespace velk {

namespace {

constexpr ui::Color kOverFullScale = ui::Color::deviceRGB(0.5, 0.0, 0.0, 1.0);

bool isPeak(const MeterReading& row) {
  return std::holds_alternative<MeterReading::Peak>(row.member);
}

}  // namespace

void PeakHoldMeters::declareOutlets(ui::Connections& connections) {
  for (std::size_t i = 0; i < kMeterReadingCount; ++i) {
    const MeterReading& row = meterReadings()[i];
    const std::string name(row.name);
    connections.addOutlet(name + "Field", readings_[i].field);
    if (isPeak(row)) {
      connections.addOutlet(name + "Indicator", readings_[i].indicator);
    }
  }
}

void PeakHoldMeters::poll(const PeakStatistics& block, ReadingSet set,
                          const ui::Localization& localization) {
  for (std::size_t i = 0; i < kMeterReadingCount; ++i) {
    const MeterReading& row = meterReadings()[i];
    if (row.set != set) {
      continue;
    }
    const TruePeakStats& record = block[row.record];
    if (const auto* peak = std::get_if<MeterReading::Peak>(&row.member)) {
      raisePeak(readings_[i], record.*(*peak));
    } else if (const auto* count = std::get_if<MeterReading::Count>(&row.member)) {
      raiseCount(readings_[i], record.*(*count), localization);
    }
  }
}

void PeakHoldMeters::raisePeak(Reading& reading, float peak) {
  // Written so that a NaN changes nothing.
  if (!(peak > reading.peak)) {
    return;
  }
  reading.peak = peak;
  reading.field->setFloatValue(peak);
  if (peak > 0.0F) {
    reading.indicator->setIntValue(kLampLit);
    reading.field->setTextColor(kOverFullScale);
  }
}

void PeakHoldMeters::raiseCount(Reading& reading, std::int64_t count,
                                const ui::Localization& localization) {
  if (count <= reading.count) {
    return;
  }
  reading.count = count;
  reading.field->setStringValue(localization.plain(count));
  reading.field->setTextColor(kOverFullScale);
}

void PeakHoldMeters::clearHeldValues() {
  for (Reading& reading : readings_) {
    reading.peak = kMeterFloor;
    reading.count = 0;
  }
}

void PeakHoldMeters::clearControls(ReadingSet set) {
  std::vector<Reading*> peaks;
  std::vector<Reading*> counters;
  for (std::size_t i = 0; i < kMeterReadingCount; ++i) {
    const MeterReading& row = meterReadings()[i];
    if (row.set == set) {
      (isPeak(row) ? peaks : counters).push_back(&readings_[i]);
    }
  }

  // The table lists the channels of one measure one after the other; they are cleared together.
  const std::size_t channels = set == ReadingSet::Stereo ? 2 : 1;
  for (std::span<Reading*> rest(peaks); !rest.empty(); rest = rest.subspan(channels)) {
    const std::span<Reading*> measure = rest.first(channels);
    for (Reading* reading : measure) {
      reading->field->setFloatValue(kMeterFloor);
    }
    for (Reading* reading : measure) {
      reading->indicator->setIntValue(kLampDark);
    }
    for (Reading* reading : measure) {
      reading->field->setTextColor(ui::Color::black());
    }
  }
  for (Reading* reading : counters) {
    reading->field->setIntegerValue(0);
  }
  for (Reading* reading : counters) {
    reading->field->setTextColor(ui::Color::black());
  }
}

}  // namespace velk
