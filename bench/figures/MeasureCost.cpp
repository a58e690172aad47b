#include <sndfile.h>

#include <array>
#include <chrono>
#include <filesystem>
#include <memory>
#include <stdexcept>
#include <string>

#include "Clock.h"
#include "Figure.h"
#include "Signals.h"
#include "converter/codec/Decoder.h"
#include "converter/codec/Encoder.h"
#include "programs/measure/JobQueue.h"

namespace figures {
namespace {

using host::measure::EncoderChoice;
using host::measure::Job;

constexpr std::uint32_t kRate = 44100;
constexpr std::size_t kSeconds = 12;
constexpr int kRounds = 5;

constexpr std::array kPresets = {"plus", "128k", "streaming", "high"};
struct Kind {
  const char* ending;
  int format;
};
constexpr std::array kKinds = {Kind{"wav", SF_FORMAT_WAV | SF_FORMAT_PCM_24},
                               Kind{"flac", SF_FORMAT_FLAC | SF_FORMAT_PCM_24}};

std::string nameOf(const char* preset, const Kind& kind) {
  return std::string("cpu_measure_") + preset + "_" + kind.ending;
}
constexpr const char* kTwoJobs = "time_measure_two_jobs";

/// A temporary folder, removed on destruction.
class Folder {
 public:
  Folder() {
    auto name = (std::filesystem::temp_directory_path() / "figures-XXXXXX").string();
    if (mkdtemp(name.data()) == nullptr) throw std::runtime_error("no temporary folder");
    path_ = name;
  }
  Folder(const Folder&) = delete;
  Folder& operator=(const Folder&) = delete;
  ~Folder() {
    std::error_code error;
    std::filesystem::remove_all(path_, error);
  }

  std::filesystem::path write(const Kind& kind, const Signal& signal) const {
    auto file = path_ / (std::string("mix.") + kind.ending);
    SF_INFO info{};
    info.samplerate = static_cast<int>(kRate);
    info.channels = 2;
    info.format = kind.format;
    struct Close {
      void operator()(SNDFILE* sound) const { sf_close(sound); }
    };
    const std::unique_ptr<SNDFILE, Close> sound(sf_open(file.c_str(), SFM_WRITE, &info));
    if (!sound) throw std::runtime_error("cannot write " + file.string());
    for (std::size_t i = 0; i < signal[0].size(); ++i) {
      const float frame[] = {signal[0][i], signal[1][i]};
      sf_writef_float(sound.get(), frame, 1);
    }
    return file;
  }

 private:
  std::filesystem::path path_;
};

/// Processor time of the bare encoder and decoder on samples in memory.
double bareSeconds(const EncoderChoice& choice, const Signal& signal) {
  const converter::UnitFormat unit{.sampleRate = kRate, .channels = 2, .maximumFrames = 4096};
  const auto setting = nearestSetting(choice.setting, unit, converter::encoderAbilities());
  const double start = processorSeconds();
  const auto encoder = openEncoder(setting, unit);
  const std::size_t length = encoder->timing().frameLength;
  const auto decoder = openDecoder(encoder->configuration(), unit, encoder->timing().frameLength);
  for (std::size_t at = 0; at + length <= signal[0].size(); at += length) {
    const float* const planes[] = {signal[0].data() + at, signal[1].data() + at};
    const auto accessUnit = encoder->encode(planes);
    if (!accessUnit.empty()) decoder->decode(accessUnit);
  }
  return processorSeconds() - start;
}

/// Processor time of everything: opening and decoding the file, the unit, its meters, and running
/// the unit out at the end of the file.
double measuredSeconds(const EncoderChoice& choice, const std::filesystem::path& file) {
  const host::measure::Options options;
  host::measure::JobProgress progress;
  const double start = processorSeconds();
  host::measure::runJob(Job{file, choice, "mix"}, options, progress);
  return processorSeconds() - start;
}

double secondsWith(unsigned jobsAtOnce, const std::vector<Job>& jobs) {
  host::measure::Options options;
  options.jobs = jobsAtOnce;
  const double start = wallSeconds();
  host::measure::JobQueue queue(jobs, options);
  for (std::size_t job = 0; job < jobs.size(); ++job) {
    while (!queue.waitFor(job, std::chrono::seconds(1))) {
    }
  }
  return wallSeconds() - start;
}

template <class Ratio>
double medianOf(Ratio ratio) {
  std::vector<double> ratios;
  for (int round = 0; round < kRounds; ++round) ratios.push_back(ratio());
  return median(ratios);
}

std::vector<Row> measure() {
  const Folder folder;
  const Signal signal = music(2, kSeconds * kRate, kRate);
  std::vector<Row> rows;
  for (const Kind& kind : kKinds) {
    const auto file = folder.write(kind, signal);
    for (const char* const preset : kPresets) {
      const auto choice = host::measure::presetChoice(preset);
      const auto ratio = [&] {
        return measuredSeconds(choice, file) / bareSeconds(choice, signal);
      };
      rows.push_back(atMost(nameOf(preset, kind), medianOf(ratio), 1.25));
    }
  }
  const std::vector<Job> jobs(
      4, Job{folder.write(kKinds[0], signal), host::measure::presetChoice("plus"), "mix"});
  const auto ratio = [&] { return secondsWith(2, jobs) / secondsWith(1, jobs); };
  rows.push_back(atMost(kTwoJobs, medianOf(ratio), 0.6));
  return rows;
}

}  // namespace

Family measureCost() {
  std::vector<std::string> names;
  for (const Kind& kind : kKinds) {
    for (const char* const preset : kPresets) names.push_back(nameOf(preset, kind));
  }
  names.emplace_back(kTwoJobs);
  return {names, measure};
}

}  // namespace figures
