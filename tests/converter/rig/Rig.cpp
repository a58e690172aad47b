#include "Rig.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>

Rig::Rig(const converter::UnitFormat& format)
    : format_(format), unit_(converter::ConverterUnit::make(format)) {
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
  const AUPreset preset{number, nullptr};
  ASSERT_EQ(unit_->setProperty(kAudioUnitProperty_PresentPreset, kAudioUnitScope_Global, 0, &preset,
                               sizeof preset),
            noErr);
}

void Rig::setOffline(bool offline) {
  const UInt32 value = offline ? 1 : 0;
  ASSERT_EQ(unit_->setProperty(kAudioUnitProperty_OfflineRender, kAudioUnitScope_Global, 0, &value,
                               sizeof value),
            noErr);
}

void Rig::monitorSource(bool source) {
  const UInt32 value = source ? 1 : 0;
  ASSERT_EQ(unit_->setProperty(velk::kConverterProperty_MonitorSource, kAudioUnitScope_Global, 0,
                               &value, sizeof value),
            noErr);
}

float Rig::parameter(AudioUnitParameterID id) {
  float value = -1;
  EXPECT_EQ(unit_->getParameter(id, kAudioUnitScope_Global, 0, value), noErr);
  return value;
}

void Rig::read(AudioUnitPropertyID id, void* data, UInt32 size) {
  UInt32 written = size;
  const AudioUnitScope scope =
      id == kAudioUnitProperty_StreamFormat ? kAudioUnitScope_Output : kAudioUnitScope_Global;
  ASSERT_EQ(unit_->getProperty(id, scope, 0, data, written), noErr);
  ASSERT_EQ(written, size);
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

Signal Rig::renderAligned(const Signal& input, std::size_t block) {
  const std::size_t latency = unit_->latency();
  Signal longer = input;
  for (auto& samples : longer) samples.resize(samples.size() + latency);
  const Signal output = render(longer, block);
  return part(output, latency, output[0].size());
}
