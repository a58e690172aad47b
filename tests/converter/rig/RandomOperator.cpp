#include "RandomOperator.h"

#include <array>

#include "contract/ConverterInterface.h"

namespace {

constexpr AudioUnitScope kGlobal = kAudioUnitScope_Global;

}  // namespace

void RandomOperator::operate() {
  const auto setFlag = [this](AudioUnitPropertyID id, UInt32 value) {
    unit_.setProperty(id, kGlobal, 0, &value, sizeof value);
  };
  switch (below(6)) {
    case 0:
      unit_.setParameter(below(3), kGlobal, 0, static_cast<float>(below(20)), 0);
      break;
    case 1: {
      const AUPreset preset{static_cast<SInt32>(below(4)), nullptr};
      unit_.setProperty(kAudioUnitProperty_PresentPreset, kGlobal, 0, &preset, sizeof preset);
      break;
    }
    case 2:
      setFlag(velk::kConverterProperty_MonitorSource, below(2));
      break;
    case 3:
      setFlag(velk::kConverterProperty_ListeningTestActive, below(2));
      break;
    case 4:
      setFlag(velk::kConverterProperty_ResetPeakStats, 1);
      break;
    default:
      readEverything();
  }
}

std::jthread RandomOperator::operateAllTheTime(std::chrono::microseconds pause) {
  return std::jthread([this, pause](const std::stop_token& stop) {
    while (!stop.stop_requested()) {
      operate();
      std::this_thread::sleep_for(pause);
    }
  });
}

void RandomOperator::readEverything() {
  std::array<unsigned char, 128> data{};
  for (const AudioUnitPropertyID id :
       {velk::kConverterProperty_PeakStats, velk::kConverterProperty_MonitorSource,
        converter::kConverterProperty_EffectiveSetting, converter::kConverterProperty_BitRate,
        converter::kConverterProperty_MissedFrames, converter::kConverterProperty_CodecFailures,
        AudioUnitPropertyID{kAudioUnitProperty_Latency}}) {
    UInt32 size = data.size();
    unit_.getProperty(id, kGlobal, 0, data.data(), size);
  }
}
