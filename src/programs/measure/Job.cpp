#include "programs/measure/Job.h"

#include <algorithm>
#include <cmath>
#include <memory>

#include "host/analysis/OfflineRun.h"
#include "host/files/OpenedFile.h"
#include "host/messages/Failure.h"
#include "host/unit/CarriedSetting.h"
#include "programs/measure/Interruption.h"
#include "programs/measure/JobOutputs.h"
#include "programs/measure/TrimSearch.h"

namespace host::measure {
namespace {

constexpr double kTenthsPerDecibel = 10;

float gainOf(int tenths) {
  return tenths == 0 ? 1.0F : static_cast<float>(std::pow(10.0, -tenths / kTenthsPerDecibel / 20));
}

bool hasOvers(const velk::PeakStatistics& peaks, bool interSample) {
  return std::any_of(peaks.begin() + velk::kPeakStatsSlot_EncodedLeft, peaks.end(),
                     [=](const velk::TruePeakStats& channel) {
                       return channel.mSampleClipCount > 0 ||
                              (interSample && channel.mInterSampleClipCount > 0);
                     });
}

/// The reduction that would suffice if the encoder behaved the same at every level.
int guessedTrim(const Readings& readings, bool interSample) {
  double peak = 0;
  for (const auto& channel : readings.encoded) {
    peak = std::max(peak, interSample ? channel.interSamplePeakDbtp : channel.samplePeakDbfs);
  }
  // What is above full scale is clipped before it is encoded, so only the source shows it.
  for (const auto& channel : readings.source) peak = std::max(peak, channel.samplePeakDbfs);
  return static_cast<int>(std::ceil(std::min(peak * kTenthsPerDecibel, double{kGreatestTrim})));
}

std::string quoted(const std::filesystem::path& file) {
  std::string name = "'";
  return name.append(file.string()).append("'");
}

/// A job while it is being done.
class Work {
 public:
  Work(const Job& job, const Options& options, JobProgress& progress)
      : job_(job),
        options_(options),
        progress_(progress),
        file_(openForPlaying(job.file, options.channels)) {}

  Row run() {
    if (options_.findTrim) {
      findTrim();
    } else {
      encodeOnce(0);
    }
    row_.isCutOff = *file_.truncated;
    return std::move(row_);
  }

 private:
  std::unique_ptr<JobOutputs> outputs() {
    if (!options_.pictures && !options_.bitStreams) return nullptr;
    return std::make_unique<JobOutputs>(job_, options_, *file_.source);
  }

  /// Encodes the file reduced by so many tenths of a decibel. Returns whether there was no over.
  /// Keeps the readings unless it gave up at the first over, which `stopAtOvers` asks for.
  bool encode(int tenths, bool stopAtOvers, JobOutputs* outputs) {
    progress_.reduction = tenths;
    progress_.done = 0;
    OfflineRunOptions run;
    run.chooseEncoder = [&](AudioUnit unit) { apply(job_.encoder, unit); };
    run.gain = gainOf(tenths);
    run.sink = outputs != nullptr ? outputs->bitStream() : nullptr;
    run.locatesOvers = outputs != nullptr && outputs->drawsPicture();
    OfflineRun pass(*file_.source, run);
    while (pass.step()) {
      stopIfInterrupted();
      if (progress_.isUnwanted) throw Interrupted();
      progress_.done = static_cast<int>(pass.share() * 1000);
      if (outputs != nullptr) outputs->follow(pass);
      if (stopAtOvers && hasOvers(pass.peaks(), options_.interSample)) return false;
    }
    auto readings = pass.finish();
    if (outputs != nullptr) outputs->follow(pass);
    readings.file = job_.file.string();
    if (const auto carried = carriedOtherwise(pass.unit()); carried && row_.warnings.empty()) {
      row_.warnings.push_back(quoted(job_.file) + ": " + *carried);
    }
    const bool clean = !measure::hasOvers(readings, options_.interSample);
    if (clean || !stopAtOvers) row_.readings = std::move(readings);
    return clean;
  }

  void encodeOnce(int tenths) {
    const auto written = outputs();
    encode(tenths, false, written.get());
    if (written && !*file_.truncated) written->commit(row_.readings, tenths);
  }

  void findTrim() {
    Trim trim{0, options_.interSample, 0};
    const auto isClean = [&](int tenths) {
      progress_.encode = trim.encodes++;
      // The first encode runs to its end: its peaks tell where to look.
      return encode(tenths, tenths > 0, nullptr);
    };
    if (!isClean(0)) {
      const auto guess = guessedTrim(row_.readings, options_.interSample);
      const auto found = smallestCleanTrim(guess, isClean);
      if (!found)
        throw Failure("'" + job_.file.string() +
                      "': no reduction up to 60 dB lets it come out without overs");
      trim.reduction = *found;
    }
    // The last clean encode was the one with the smallest reduction: `row_` has its readings.
    row_.trim = trim;
    if (options_.pictures || options_.bitStreams) encodeOnce(trim.reduction);
  }

  const Job& job_;
  const Options& options_;
  JobProgress& progress_;
  OpenedFile file_;
  Row row_;
};

}  // namespace

bool hasOvers(const Readings& readings, bool interSample) {
  return std::any_of(
      readings.encoded.begin(), readings.encoded.end(), [=](const ChannelReading& channel) {
        return channel.sampleClips > 0 || (interSample && channel.interSampleOvers > 0);
      });
}

Row runJob(const Job& job, const Options& options, JobProgress& progress) {
  try {
    return Work(job, options, progress).run();
  } catch (const Failure& failure) {
    const std::string why = failure.what();
    if (why.find(job.file.string()) != std::string::npos) throw;
    throw Failure(quoted(job.file) + ": " + why);
  }
}

}  // namespace host::measure
