#include "programs/measure/Pass.h"

#include <algorithm>

#include "host/messages/Failure.h"

namespace host::measure {
namespace {

UInt64 count(converter::ConverterUnit& unit, const audio_unit::Property<UInt64>& what) {
  return readProperty(&unit, what).valueOr(0);
}

}  // namespace

Pass::Pass(AudioSource& source, const EncoderChoice& choice, float gain,
           converter::BitStreamSink* sink)
    : source_(source), format_(source.format()), gain_(gain) {
  unit_ = unitFor(format_);
  writeProperty(unit_.get(), audio_unit::offlineRenderProperty, 1);
  apply(choice, unit_.get());
  unit_->setBitStreamSink(sink);
  interleaved_.resize(std::size_t{unitBlockFrames} * format_.channels);
  for (std::uint32_t channel = 0; channel < format_.channels; ++channel) {
    planes_[channel].resize(unitBlockFrames);
    encoded_[channel].resize(unitBlockFrames);
    input_[channel] = planes_[channel].data();
  }
  source_.seek(0);
}

void Pass::take(std::uint32_t frames) {
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

bool Pass::step() {
  auto frames = std::int64_t{blockFrames_};
  if (sourceEnded_) frames = std::min(frames, taken_ + unit_->latency() - rendered_);
  if (frames <= 0) return false;
  take(static_cast<std::uint32_t>(frames));
  // Where the source ends within this block, so may what follows it.
  if (sourceEnded_) frames = std::min(frames, taken_ + unit_->latency() - rendered_);
  const std::array<float*, 2> output = {encoded_[0].data(), encoded_[1].data()};
  unit_->render(input_.data(), output.data(), static_cast<UInt32>(frames));
  rendered_ += frames;
  return true;
}

std::int64_t Pass::metered() const {
  return std::max<std::int64_t>(rendered_ - unit_->latency(), 0);
}

velk::PeakStatistics Pass::peaks() const {
  return peakStatisticsOf(*unit_);
}

Readings Pass::finish() {
  unit_->waitForCodec();
  if (count(*unit_, converter::kConverterProperty_MissedFrames) > 0 ||
      count(*unit_, converter::kConverterProperty_CodecFailures) > 0) {
    throw Failure("the encoder failed in the middle; try another setting");
  }
  auto readings = finalReadingsOf(*unit_, format_);
  readings.seconds = static_cast<double>(taken_) / format_.sampleRate;
  return readings;
}

}  // namespace host::measure
