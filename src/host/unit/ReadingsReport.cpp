#include <cmath>
#include <iomanip>
#include <nlohmann/json.hpp>
#include <sstream>

#include "host/messages/Decimal.h"
#include "host/unit/Readings.h"

namespace host {
namespace {

using Json = nlohmann::ordered_json;

constexpr int kLevelDigits = 3;

Json level(double value) {
  // JSON has no infinity: a level of nothing at all is null.
  return std::isfinite(value) ? Json(rounded(value, kLevelDigits)) : Json(nullptr);
}

Json channels(const std::vector<ChannelReading>& readings) {
  auto list = Json::array();
  for (const auto& reading : readings) {
    list.push_back({{"sample_peak_dbfs", level(reading.samplePeakDbfs)},
                    {"inter_sample_peak_dbtp", level(reading.interSamplePeakDbtp)},
                    {"sample_clips", reading.sampleClips},
                    {"inter_sample_overs", reading.interSampleOvers}});
  }
  return list;
}

void appendRows(std::ostream& text, const char* signal,
                const std::vector<ChannelReading>& readings) {
  for (std::size_t channel = 0; channel < readings.size(); ++channel) {
    const auto& reading = readings[channel];
    const char* const name = readings.size() == 1 ? "mono  " : channel == 0 ? "left  " : "right ";
    text << signal << "  " << name << std::setw(8) << decimal(reading.samplePeakDbfs, 2) << " dBFS"
         << std::setw(9) << reading.sampleClips << " clips" << std::setw(9)
         << decimal(reading.interSamplePeakDbtp, 2) << " dBTP" << std::setw(9)
         << reading.interSampleOvers << " overs\n";
  }
}

}  // namespace

std::string asJson(const Readings& readings) {
  const auto& setting = readings.setting;
  const auto numberOrNull = [](std::optional<std::uint32_t> number) {
    return number ? Json(*number) : Json(nullptr);
  };
  const Json json = {{"file", readings.file},
                     {"seconds", rounded(readings.seconds, 6)},
                     {"sample_rate_hz", readings.format.sampleRate},
                     {"channels", readings.format.channels},
                     {"setting",
                      {{"format", formatName(setting.format)},
                       {"strategy", strategyName(setting.strategy)},
                       {"rate_kbps", numberOrNull(setting.rateKbps())},
                       {"quality", numberOrNull(setting.quality())}}},
                     {"bit_rate_kbps", rounded(readings.bitRateKbps, 1)},
                     {"latency_samples", readings.latencySamples},
                     {"monitor", readings.monitorsSource ? "source" : "encoded"},
                     {"source", channels(readings.source)},
                     {"encoded", channels(readings.encoded)}};
  // A file name need not be UTF-8.
  return json.dump(-1, ' ', false, Json::error_handler_t::replace);
}

std::string asText(const Readings& readings) {
  const auto& setting = readings.setting;
  std::ostringstream text;
  text << "File      " << readings.file << "\n"
       << "Played    " << decimal(readings.seconds, 3) << " s, " << readings.format.sampleRate
       << " Hz, " << (readings.format.channels == 1 ? "mono" : "stereo") << ", "
       << (readings.monitorsSource ? "source" : "encoded") << " monitored\n"
       << "Encoder   " << formatName(setting.format) << " " << strategyName(setting.strategy);
  if (const auto kbps = setting.rateKbps()) {
    text << " " << *kbps << " kbit/s";
  } else if (const auto quality = setting.quality()) {
    text << " quality " << *quality;
  }
  text << ", really " << decimal(readings.bitRateKbps, 1) << " kbit/s\n"
       << "Latency   " << readings.latencySamples << " samples\n";
  appendRows(text, "Source  ", readings.source);
  appendRows(text, "Encoded ", readings.encoded);
  return text.str();
}

}  // namespace host
