#include "RandomOperator.h"

#include "contract/ConverterInterface.h"

void RandomOperator::operate() {
  switch (below(6)) {
    case 0:
      unit_.setParameter(below(3), kAudioUnitScope_Global, 0, static_cast<float>(below(20)), 0);
      break;
    case 1:
      writeProperty(&unit_, audio_unit::presentPresetProperty,
                    {static_cast<SInt32>(below(4)), nullptr});
      break;
    case 2:
      writeProperty(&unit_, velk::kConverterProperty_MonitorSource, below(2));
      break;
    case 3:
      writeProperty(&unit_, velk::kConverterProperty_ListeningTestActive, below(2));
      break;
    case 4:
      writeProperty(&unit_, velk::kConverterProperty_ResetPeakStats, 1);
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
  readProperty(&unit_, velk::kConverterProperty_PeakStats);
  readProperty(&unit_, velk::kConverterProperty_MonitorSource);
  readProperty(&unit_, converter::kConverterProperty_EffectiveSetting);
  readProperty(&unit_, converter::kConverterProperty_BitRate);
  readProperty(&unit_, converter::kConverterProperty_MissedFrames);
  readProperty(&unit_, converter::kConverterProperty_CodecFailures);
  readProperty(&unit_, audio_unit::latencyProperty);
}
