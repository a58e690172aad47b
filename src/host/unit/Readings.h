#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "audio_unit/Framework.h"
#include "contract/ConverterInterface.h"
#include "host/files/AudioSource.h"
#include "host/unit/EncoderSetting.h"

namespace converter {
class ConverterUnit;
}

namespace host {

/// What the meters of one channel read.
struct ChannelReading {
  double samplePeakDbfs = 0;
  double interSamplePeakDbtp = 0;
  std::int64_t sampleClips = 0;
  std::int64_t interSampleOvers = 0;
};

/// What a run through the converter came to.
struct Readings {
  std::string file;
  double seconds = 0;
  AudioFormat format;
  EncoderSetting setting;
  double bitRateKbps = 0;
  std::uint32_t latencySamples = 0;
  bool monitorsSource = false;
  /// One record per channel.
  std::vector<ChannelReading> source;
  std::vector<ChannelReading> encoded;
};

/// Asks the unit; `file` and `seconds` stay empty. Throws `Failure` when the unit does not tell.
Readings readingsOf(converter::ConverterUnit& unit, AudioFormat format);
/// The same at the end of all audio: as if silence followed, so that the very last samples count
/// too. Not while the unit renders.
Readings finalReadingsOf(converter::ConverterUnit& unit, AudioFormat format);
/// Throws `Failure` when the unit does not tell.
velk::PeakStatistics peakStatisticsOf(converter::ConverterUnit& unit);

/// One JSON object on one line, without a line end.
std::string asJson(const Readings& readings);
/// A small table, for people.
std::string asText(const Readings& readings);

}  // namespace host
