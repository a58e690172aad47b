#include "converter/stream/Renderer.h"

#include <algorithm>
#include <utility>

#include "converter/transcoder/CodecPair.h"
#include "converter/transcoder/Latency.h"

namespace converter {
namespace {

/// Room for all that can be in flight, and some more for a worker that is late.
std::size_t queueBlocks(const UnitFormat& unit) {
  return (latencyFor(unit) + unit.maximumFrames) / kBlockFrames + 4;
}

std::array<float*, kMaximumChannels> pointers(
    std::array<std::vector<float>, kMaximumChannels>& planes) {
  return {planes[0].data(), planes[1].data()};
}

}  // namespace

Renderer::Renderer(const UnitFormat& unit, RenderControls& controls, const OpenEncoder& open,
                   realtime::ReadClock readClock)
    : unit_(unit),
      controls_(controls),
      latency_(latencyFor(unit)),
      worker_(unit, queueBlocks(unit), open),
      feeder_(worker_, unit),
      reader_(worker_, unit.maximumFrames),
      delay_(unit.channels, latency_, unit.maximumFrames),
      meters_(unit.channels),
      monitor_(unit.sampleRate),
      mute_(unit.sampleRate),
      lead_(unit.sampleRate, std::move(readClock)) {
  for (auto& plane : source_) plane.resize(unit.maximumFrames);
  for (auto& plane : encoded_) plane.resize(unit.maximumFrames);
  // Fails at once if the codec does not work, and takes the libraries' slow first use off the
  // worker.
  const UnitFormat codec = codecFormat(unit);
  const CodecPair trial(open(controls.setting.load(), codec), codec, 0);
  worker_.setUrgent(true);
  worker_.start();
}

void Renderer::render(const float* const* input, float* const* output, UInt32 frames) noexcept {
  const Patience patience = patienceOf(frames);
  for (UInt32 done = 0; done < frames;) {
    const UInt32 slice = std::min(frames - done, unit_.maximumFrames);
    std::array<const float*, kMaximumChannels> in{};
    std::array<float*, kMaximumChannels> out{};
    for (UInt32 channel = 0; channel < unit_.channels; ++channel) {
      in[channel] = input[channel] + done;
      out[channel] = output[channel] + done;
    }
    renderSlice(in.data(), out.data(), slice, patience);
    done += slice;
  }
}

/// Once for all slices of a call, whose waits would add up.
Patience Renderer::patienceOf(UInt32 frames) noexcept {
  if (!controls_.offline.load(std::memory_order_relaxed)) return Patience::of(lead_.take(frames));
  // What was rendered off line lies in no device's buffer.
  lead_.clear();
  return Patience::endless();
}

void Renderer::renderSlice(const float* const* input, float* const* output, UInt32 frames,
                           Patience patience) {
  const bool monitorSource = controls_.monitorSource.load(std::memory_order_relaxed);
  const Position position = feeder_.position() - latency_;
  const auto source = pointers(source_);
  const auto encoded = pointers(encoded_);

  feeder_.request(controls_.setting.load(std::memory_order_relaxed));
  feeder_.feed(input, unit_.channels, frames, patience);
  delay_.process(input, source.data(), frames);
  const Stretches ofEncoded =
      reader_.read(position, frames, encoded.data(), unit_.channels, patience);
  countMissed(ofEncoded);
  if (controls_.metering.load(std::memory_order_relaxed)) {
    meters_.process(source.data(), encoded.data(), frames, ofEncoded);
  } else {
    meters_.pass(source.data(), encoded.data(), frames);
  }
  monitor_.process(source.data(), encoded.data(), output, unit_.channels, frames, monitorSource);
  mute_.process(output, unit_.channels, ofEncoded,
                controls_.listeningTest.load(std::memory_order_relaxed));
}

void Renderer::countMissed(Stretches ofEncoded) {
  for (const auto& stretch : ofEncoded) {
    if (stretch.soundness != Soundness::missing) continue;
    controls_.missedFrames.fetch_add(stretch.frames, std::memory_order_relaxed);
  }
}

void Renderer::reset() {
  worker_.stop();
  feeder_.clear();
  delay_.clear();
  meters_.abandon();
  lead_.clear();
  worker_.start();
}

void Renderer::waitForCodec() {
  worker_.waitUntil([this] { return worker_.source().empty(); }, Patience::endless());
}

void Renderer::setBitStreamSink(BitStreamSink* sink) {
  worker_.stop();
  worker_.setBitStreamSink(sink);
  reset();
}

}  // namespace converter
