#include "host/analysis/Analysis.h"

#include <utility>

#include "host/analysis/Scans.h"

namespace host {

Analysis::Analysis(Open open, AudioFormat format, MakeUnit make)
    : open_(std::move(open)), make_(std::move(make)), format_(format) {
  startWaveform();
}

Analysis::~Analysis() = default;

void Analysis::startWaveform() {
  step_ = Step::Waveform;
  overview_ = std::make_shared<SharedOverview>(format_.channels);
  work_ =
      std::make_unique<BackgroundWork>([open = open_, overview = overview_](Progress& progress) {
        scanSource(*open(), *overview, progress);
      });
  work_->progress().setPaused(testRuns_);
}

void Analysis::startEncoded() {
  result_ = std::make_shared<std::optional<Readings>>();
  work_ =
      std::make_unique<BackgroundWork>([open = open_, make = make_, overview = overview_,
                                        setting = *setting_, result = result_](Progress& progress) {
        *result = scanEncoded(*open(), setting, *overview, progress, make);
      });
}

void Analysis::update(const EncoderSetting& setting, bool testRuns, Clock::time_point now) {
  if (testRuns != testRuns_) {
    testRuns_ = testRuns;
    hears_ = false;
    if (work_) work_->progress().setPaused(testRuns);
  }
  if (testRuns_) return;
  if (setting != setting_) takeUp(setting, now);
  if (work_ && work_->hasEnded()) takeResult();
  if (step_ == Step::Encoded && !work_ && now >= settledAt_) startEncoded();
}

void Analysis::takeUp(const EncoderSetting& setting, Clock::time_point now) {
  // The first setting need not settle.
  settledAt_ = setting_ ? now + kSettling : now;
  setting_ = setting;
  if (!waveformIsKnown_) return;
  work_.reset();
  overview_->clearOvers(Signal::Encoded);
  hears_ = false;
  step_ = Step::Encoded;
}

void Analysis::takeResult() {
  failure_ = work_->failure();
  work_.reset();
  if (!failure_.empty()) {
    step_ = Step::Failed;
  } else if (step_ == Step::Waveform) {
    waveformIsKnown_ = true;
    step_ = Step::Encoded;
  } else {
    step_ = Step::Done;
    encodedOvers_ = 0;
    for (const auto& channel : result_->value().encoded) encodedOvers_ += channel.interSampleOvers;
  }
}

void Analysis::follow(const velk::PeakStatistics& peaks, std::int64_t frame) {
  const bool marks = hears_ && !testRuns_ && step_ != Step::Done;
  for (std::uint32_t channel = 0; marks && channel < format_.channels; ++channel) {
    const auto slot = velk::kPeakStatsSlot_EncodedLeft + channel;
    const auto overs = peaks.at(slot).mInterSampleClipCount - heard_.at(slot).mInterSampleClipCount;
    // Fewer than before means that the statistics were reset.
    if (overs > 0) {
      overview_->addOvers(Signal::Encoded, channel, heardUpTo_, static_cast<std::uint32_t>(overs));
    }
  }
  heard_ = peaks;
  heardUpTo_ = frame;
  hears_ = !testRuns_;
}

void Analysis::cancel() {
  if (!work_ && step_ != Step::Encoded) return;
  if (work_ && work_->hasEnded()) return;
  work_.reset();
  step_ = Step::Cancelled;
}

void Analysis::restart() {
  if (step_ != Step::Cancelled && step_ != Step::Failed) return;
  failure_ = {};
  if (!waveformIsKnown_) {
    startWaveform();
  } else {
    overview_->clearOvers(Signal::Encoded);
    step_ = Step::Encoded;
  }
}

Analysis::State Analysis::state() const {
  const double share = work_ ? work_->progress().share() : 0;
  return {step_, share, failure_, step_ == Step::Done ? encodedOvers_ : 0};
}

}  // namespace host
