#include "host/analysis/OfflineRun.h"

#include <algorithm>

#include "contract/ConverterExtensions.h"
#include "host/messages/Failure.h"
#include "host/unit/ConverterSetup.h"

namespace host {
namespace {

UInt64 count(converter::ConverterUnit& unit, const audio_unit::Property<UInt64>& what) {
  return readProperty(&unit, what).valueOr(0);
}

std::uint32_t difference(std::int64_t now, std::int64_t before) {
  return static_cast<std::uint32_t>(std::clamp<std::int64_t>(now - before, 0, UINT32_MAX));
}

/// From a frame that may lie before the first to the end of its stretch.
std::int64_t restOfStretch(std::int64_t frame) {
  const auto into = frame % overStretchFrames;
  return into < 0 ? -into : overStretchFrames - into;
}

}  // namespace

OfflineRun::OfflineRun(AudioSource& source, const OfflineRunOptions& options)
    : OfflineRun(source, options, unitFor) {}

OfflineRun::OfflineRun(AudioSource& source, const OfflineRunOptions& options, const MakeUnit& make)
    : source_(source),
      format_(source.format()),
      gain_(options.gain),
      locatesOvers_(options.locatesOvers),
      unit_(make(format_)),
      interleaved_(std::size_t{unitBlockFrames} * format_.channels) {
  writeProperty(unit_.get(), audio_unit::offlineRenderProperty, 1);
  options.chooseEncoder(unit_.get());
  // Nothing of the setting that the unit was made with is left inside.
  unit_->setBitStreamSink(options.sink);
  for (std::uint32_t channel = 0; channel < format_.channels; ++channel) {
    planes_[channel].resize(unitBlockFrames);
    encoded_[channel].resize(unitBlockFrames);
    input_[channel] = planes_[channel].data();
  }
  located_ = peaks();
  source_.seek(0);
}

std::int64_t OfflineRun::metered() const {
  return std::max<std::int64_t>(rendered_ - unit_->latency(), 0);
}

double OfflineRun::share() const {
  const auto length = static_cast<double>(std::max<std::int64_t>(source_.frames(), 1));
  return std::min(static_cast<double>(metered()) / length, 1.0);
}

std::int64_t OfflineRun::nextBlock() const {
  const auto most = locatesOvers_ ? restOfStretch(rendered_ - std::int64_t{unit_->latency()})
                                  : std::int64_t{unitBlockFrames};
  if (!sourceEnded_) return most;
  // No further than the last frame, so that what is metered is the source and nothing else.
  return std::min(most, taken_ + unit_->latency() - rendered_);
}

void OfflineRun::take(std::uint32_t frames) {
  const auto channels = format_.channels;
  inputFrames_ = 0;
  if (!sourceEnded_) {
    inputFrames_ = static_cast<std::uint32_t>(source_.read(interleaved_.data(), frames));
    sourceEnded_ = inputFrames_ < frames;
    taken_ += inputFrames_;
  }
  for (std::uint32_t channel = 0; channel < channels; ++channel) {
    float* const plane = planes_[channel].data();
    const float* from = interleaved_.data() + channel;
    for (std::uint32_t i = 0; i < inputFrames_; ++i, from += channels) plane[i] = *from * gain_;
    std::fill(plane + inputFrames_, plane + frames, 0.0F);
  }
}

bool OfflineRun::step() {
  overs_.clear();
  inputFrames_ = 0;
  const auto before = metered();
  const auto most = nextBlock();
  if (most <= 0) return false;
  take(static_cast<std::uint32_t>(most));
  // Shorter than that where the source has ended meanwhile.
  const auto frames = nextBlock();
  const std::array<float*, 2> output = {encoded_[0].data(), encoded_[1].data()};
  unit_->render(input_.data(), output.data(), static_cast<UInt32>(frames));
  rendered_ += frames;
  if (metered() > before) {
    lastMiddle_ = before + (metered() - before) / 2;
    if (locatesOvers_) locateOvers(lastMiddle_);
  }
  return true;
}

void OfflineRun::locateOvers(std::int64_t frame) {
  const auto now = peaks();
  for (std::uint32_t channel = 0; channel < format_.channels; ++channel) {
    const auto add = [&](Signal signal, std::size_t slot) {
      const auto overs =
          difference(now.at(slot).mInterSampleClipCount, located_.at(slot).mInterSampleClipCount);
      if (overs > 0) overs_.push_back({signal, channel, frame, overs});
    };
    add(Signal::Source, velk::kPeakStatsSlot_SourceLeft + channel);
    add(Signal::Encoded, velk::kPeakStatsSlot_EncodedLeft + channel);
  }
  located_ = now;
}

Readings OfflineRun::finish() {
  overs_.clear();
  unit_->waitForCodec();
  if (count(*unit_, converter::kConverterProperty_MissedFrames) > 0 ||
      count(*unit_, converter::kConverterProperty_CodecFailures) > 0) {
    throw Failure(Message::words("the encoder failed on the way; try another encoder setting"));
  }
  auto readings = finalReadingsOf(*unit_, format_);
  readings.seconds = static_cast<double>(taken_) / format_.sampleRate;
  if (locatesOvers_) locateOvers(lastMiddle_);
  return readings;
}

}  // namespace host
