#include "Rig.h"

#include <algorithm>
#include <array>
#include <chrono>
#include <utility>

realtime::ReadClock Rig::alwaysLate() {
  return [time = std::chrono::steady_clock::time_point{}]() mutable {
    return time += std::chrono::hours(1);
  };
}

Rig::Rig(const converter::UnitFormat& format, realtime::ReadClock readClock)
    : format_(format), unit_(converter::ConverterUnit::make(format, std::move(readClock))) {
  unit_->setBitStreamSink(&gate_);
  setOffline(true);
}

void Rig::setParameter(AudioUnitParameterID id, float value) {
  ASSERT_EQ(unit_->setParameter(id, kAudioUnitScope_Global, 0, value, 0), noErr);
}

void Rig::setSetting(float format, float strategy, float rateOrQuality) {
  setParameter(velk::kConverterParam_Format, format);
  setParameter(velk::kConverterParam_Strategy, strategy);
  setParameter(velk::kConverterParam_RateQuality, rateOrQuality);
}

void Rig::setPreset(SInt32 number) {
  setProperty(audio_unit::presentPresetProperty, {number, nullptr});
}

void Rig::setOffline(bool offline) {
  setProperty(audio_unit::offlineRenderProperty, offline ? 1 : 0);
}

void Rig::monitorSource(bool source) {
  setProperty(velk::kConverterProperty_MonitorSource, source ? 1 : 0);
}

float Rig::parameter(AudioUnitParameterID id) {
  float value = -1;
  EXPECT_EQ(unit_->getParameter(id, kAudioUnitScope_Global, 0, value), noErr);
  return value;
}

Signal Rig::render(const Signal& input, std::size_t block) {
  return renderInBlocks(input, [block](std::size_t) { return block; });
}

Signal Rig::renderInBlocks(const Signal& input,
                           const std::function<std::size_t(std::size_t)>& nextBlock) {
  const std::size_t frames = input[0].size();
  Signal output = silence(format_.channels, frames);
  for (std::size_t at = 0; at < frames;) {
    const std::size_t block = std::min(nextBlock(at), frames - at);
    std::array<const float*, 2> in{};
    std::array<float*, 2> out{};
    for (std::size_t channel = 0; channel < format_.channels; ++channel) {
      in[channel] = input[channel].data() + at;
      out[channel] = output[channel].data() + at;
    }
    unit_->render(in.data(), out.data(), static_cast<UInt32>(block));
    at += block;
  }
  return output;
}

Signal Rig::renderTooFast(const Signal& input) {
  setOffline(false);
  gate_.close();
  UInt32 turn = 0;
  Signal output = renderInBlocks(input, [&](std::size_t) -> std::size_t {
    setPreset(turn % 2 == 0 ? 2 : 3);
    if (turn++ % 3 == 0) gate_.letPass(1);
    return format_.maximumFrames;
  });
  gate_.open();
  return output;
}

Signal Rig::renderInGaps(const Signal& input) {
  constexpr int kPeriod = 30;
  constexpr int kStanding = 12;
  int turn = 0;
  Signal output = renderInBlocks(input, [&](std::size_t) -> std::size_t {
    if (turn % kPeriod == kPeriod - kStanding) {
      unit_->waitForCodec();
      gate_.close();
      setOffline(false);
    } else if (turn % kPeriod == 0) {
      gate_.open();
      setOffline(true);
    }
    ++turn;
    return format_.maximumFrames;
  });
  gate_.open();
  setOffline(true);
  return output;
}

Signal Rig::renderAligned(const Signal& input, std::size_t block) {
  const std::size_t latency = unit_->latency();
  Signal longer = input;
  for (auto& samples : longer) samples.resize(samples.size() + latency);
  const Signal output = render(longer, block);
  return part(output, latency, output[0].size());
}
