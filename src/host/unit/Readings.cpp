#include "host/unit/Readings.h"

#include "converter/unit/ConverterUnit.h"
#include "host/messages/Failure.h"

namespace host {
namespace {

template <class Data>
Data readOrThrow(AudioUnit unit, const audio_unit::Property<Data>& property,
                 Message::Words complaint) {
  const auto reading = readProperty(unit, property);
  if (!reading) throw Failure(complaint, {reading.status()});
  return *reading;
}

ChannelReading reading(const velk::TruePeakStats& stats) {
  return {stats.mSamplePeak, stats.mInterSamplePeak, stats.mSampleClipCount,
          stats.mInterSampleClipCount};
}

void readPeaks(converter::ConverterUnit& unit, Readings& readings) {
  readings.source.clear();
  readings.encoded.clear();
  const auto stats = peakStatisticsOf(unit);
  for (std::size_t channel = 0; channel < readings.format.channels; ++channel) {
    readings.source.push_back(reading(stats.at(velk::kPeakStatsSlot_SourceLeft + channel)));
    readings.encoded.push_back(reading(stats.at(velk::kPeakStatsSlot_EncodedLeft + channel)));
  }
}

}  // namespace

Readings readingsOf(converter::ConverterUnit& unit, AudioFormat format) {
  Readings readings;
  readings.format = format;
  readings.setting = encoderSettingOf(&unit);
  readings.bitRateKbps = static_cast<double>(
      readOrThrow(&unit, converter::kConverterProperty_BitRate,
                  Message::words("the converter does not tell its bit rate (status %1)"))
          .averageKbps);
  readings.latencySamples = unit.latency();
  readings.monitorsSource =
      readOrThrow(&unit, velk::kConverterProperty_MonitorSource,
                  Message::words("the converter does not tell its monitored signal (status %1)")) !=
      0;
  readPeaks(unit, readings);
  return readings;
}

Readings finalReadingsOf(converter::ConverterUnit& unit, AudioFormat format) {
  unit.finish();
  return readingsOf(unit, format);
}

velk::PeakStatistics peakStatisticsOf(converter::ConverterUnit& unit) {
  return readOrThrow(
      &unit, velk::kConverterProperty_PeakStats,
      host::Message::words("the converter does not tell its peak statistics (status %1)"));
}

}  // namespace host
