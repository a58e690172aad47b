// What aac-measure costs: its processor time over that of the bare encoder and decoder on the same
// samples, for each preset and kind of file, and the time of two jobs at once over one at a time.
// usage: measure_cost [--json] [SECONDS]

#include <sndfile.h>
#include <sys/resource.h>

#include <algorithm>
#include <chrono>
#include <cmath>
#include <cstdlib>
#include <cstring>
#include <filesystem>
#include <iostream>
#include <random>
#include <string>
#include <vector>

#include "converter/Decoder.h"
#include "converter/Encoder.h"
#include "host/Decimal.h"
#include "host/measure/Job.h"
#include "host/measure/JobQueue.h"

namespace {

using host::measure::EncoderChoice;
using host::measure::Job;
using host::measure::Options;

constexpr std::uint32_t sampleRate = 44100;
constexpr int repeats = 3;

double processorSeconds() {
  rusage usage{};
  getrusage(RUSAGE_SELF, &usage);
  const auto seconds = [](const timeval& time) {
    return static_cast<double>(time.tv_sec) + static_cast<double>(time.tv_usec) / 1e6;
  };
  return seconds(usage.ru_utime) + seconds(usage.ru_stime);
}

double wallSeconds() {
  return std::chrono::duration<double>(std::chrono::steady_clock::now().time_since_epoch()).count();
}

using Planes = std::vector<std::vector<float>>;

/// Loud chords under a beat of noise: what keeps an encoder and a true-peak meter busy.
Planes music(std::size_t frames) {
  Planes planes(2, std::vector<float>(frames));
  std::mt19937 random(1);
  std::uniform_real_distribution<float> white(-1.0F, 1.0F);
  for (std::size_t channel = 0; channel < 2; ++channel) {
    for (std::size_t i = 0; i < frames; ++i) {
      const auto time = static_cast<double>(i) / sampleRate;
      double sample = 0;
      for (const double hertz : {110.0, 220.5, 331.0, 554.4, 1318.5, 2637.0}) {
        const auto drift = 1 + 0.002 * static_cast<double>(channel);
        sample += std::sin(2 * M_PI * hertz * drift * time) * 110 / (110 + hertz / 4);
      }
      const auto beat = std::exp(-std::fmod(time, 0.25) * 24);
      sample = 0.25 * sample + 0.8 * beat * static_cast<double>(white(random));
      planes[channel][i] = static_cast<float>(std::clamp(sample, -0.99, 0.99));
    }
  }
  return planes;
}

void write(const std::filesystem::path& path, const Planes& planes, int format) {
  SF_INFO info{};
  info.samplerate = static_cast<int>(sampleRate);
  info.channels = 2;
  info.format = format;
  SNDFILE* const file = sf_open(path.c_str(), SFM_WRITE, &info);
  if (file == nullptr) throw std::runtime_error("cannot write " + path.string());
  std::vector<float> interleaved;
  for (std::size_t i = 0; i < planes[0].size(); ++i) {
    interleaved.push_back(planes[0][i]);
    interleaved.push_back(planes[1][i]);
  }
  constexpr std::size_t block = 8192;
  for (std::size_t begin = 0; begin < interleaved.size(); begin += block) {
    sf_write_float(file, interleaved.data() + begin,
                   static_cast<sf_count_t>(std::min(block, interleaved.size() - begin)));
  }
  sf_close(file);
}

double bareSeconds(const EncoderChoice& choice, const Planes& planes) {
  const converter::UnitFormat unit{sampleRate, 2, 4096};
  const auto setting = converter::nearestSetting(
      {static_cast<float>(choice.setting.format), static_cast<float>(choice.setting.strategy),
       static_cast<float>(choice.setting.rateOrQuality)},
      unit, converter::encoderAbilities());
  const auto begin = processorSeconds();
  const auto encoder = converter::openEncoder(setting, unit);
  const auto timing = encoder->timing();
  const auto decoder = converter::openDecoder(encoder->configuration(), unit, timing.frameLength);
  for (std::size_t at = 0; at + timing.frameLength <= planes[0].size(); at += timing.frameLength) {
    const float* const frame[] = {planes[0].data() + at, planes[1].data() + at};
    const auto accessUnit = encoder->encode(frame);
    if (!accessUnit.empty()) decoder->decode(accessUnit);
  }
  return processorSeconds() - begin;
}

double measuredSeconds(const EncoderChoice& choice, const std::filesystem::path& file) {
  Options options;
  host::measure::JobProgress progress;
  const auto begin = processorSeconds();
  host::measure::done(Job{file, choice, "bench"}, options, progress);
  return processorSeconds() - begin;
}

double timeOf(unsigned atOnce, const std::vector<Job>& jobs) {
  Options options;
  options.jobs = atOnce;
  const auto begin = wallSeconds();
  {
    host::measure::JobQueue queue(jobs, options);
    for (std::size_t i = 0; i < jobs.size(); ++i) {
      while (!queue.waitFor(i, std::chrono::seconds(1))) {
      }
    }
  }
  return wallSeconds() - begin;
}

/// The middle of several ratios: other work on the machine spoils few of them.
template <class Ratio>
double middle(Ratio ratio) {
  std::vector<double> values;
  for (int i = 0; i < repeats; ++i) values.push_back(ratio());
  std::sort(values.begin(), values.end());
  return values[repeats / 2];
}

bool asJson = false;
bool allHold = true;

void report(const std::string& name, double value, double goal) {
  const bool holds = value <= goal;
  allHold = allHold && holds;
  if (asJson) {
    std::cout << R"({"name":")" << name << R"(","value":)" << host::decimal(value, 3)
              << R"(,"goal":)" << host::decimal(goal, 2) << R"(,"holds":)"
              << (holds ? "true" : "false") << "}\n";
  } else {
    std::cout << name << std::string(44 - std::min<std::size_t>(name.size(), 43), ' ')
              << host::decimal(value, 3) << "  goal <= " << host::decimal(goal, 2)
              << (holds ? "  holds\n" : "  does not hold\n");
  }
  std::cout.flush();
}

}  // namespace

int main(int argc, char** argv) {
  std::size_t seconds = 60;
  for (int i = 1; i < argc; ++i) {
    if (std::strcmp(argv[i], "--json") == 0) {
      asJson = true;
    } else {
      seconds = std::strtoul(argv[i], nullptr, 10);
    }
  }
  const auto folder = std::filesystem::temp_directory_path() / "aac-measure-cost";
  std::filesystem::create_directories(folder);
  const auto planes = music(seconds * sampleRate);
  const std::pair<const char*, int> kinds[] = {{"mix.wav", SF_FORMAT_WAV | SF_FORMAT_PCM_24},
                                               {"mix.flac", SF_FORMAT_FLAC | SF_FORMAT_PCM_24}};
  for (const auto& [name, format] : kinds) write(folder / name, planes, format);
  for (const auto& [name, format] : kinds) {
    for (const auto& choice : host::measure::everyPreset()) {
      const auto ratio = [&] {
        return measuredSeconds(choice, folder / name) / bareSeconds(choice, planes);
      };
      report("CPU over bare codec: " + host::settingName(choice.setting) + ", " + name,
             middle(ratio), 1.25);
    }
  }
  const auto choice = host::measure::everyPreset().front();
  const std::vector<Job> jobs(4, Job{folder / "mix.wav", choice, "bench"});
  report("time of two jobs at once over one at a time",
         middle([&] { return timeOf(2, jobs) / timeOf(1, jobs); }), 0.6);
  std::filesystem::remove_all(folder);
  return allHold ? EXIT_SUCCESS : EXIT_FAILURE;
}
