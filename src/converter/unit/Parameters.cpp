#include "converter/unit/Parameters.h"

#include "contract/ConverterInterface.h"
#include "converter/codec/Encoder.h"

namespace converter {

Parameters::Parameters(const UnitFormat& unit, const velk::EncoderSetting& values,
                       std::atomic<Setting>& setting)
    : unit_(unit), abilities_(encoderAbilities()), setting_(setting) {
  setValues(values);
}

float Parameters::value(AudioUnitParameterID id) const {
  return values_[id].load();
}

void Parameters::setValue(AudioUnitParameterID id, float value) {
  values_[id].store(value);
  publish();
}

velk::EncoderSetting Parameters::values() const {
  return {value(velk::kConverterParam_Format), value(velk::kConverterParam_Strategy),
          value(velk::kConverterParam_RateQuality)};
}

void Parameters::setValues(const velk::EncoderSetting& values) {
  values_[velk::kConverterParam_Format].store(values.format);
  values_[velk::kConverterParam_Strategy].store(values.strategy);
  values_[velk::kConverterParam_RateQuality].store(values.rateOrQuality);
  publish();
}

Format Parameters::highestFormat() const {
  return converter::highestFormat(abilities_, unit_.channels);
}

/// Whoever finds that another thread wrote meanwhile publishes once more, so that the last setting
/// published is that of the last values.
void Parameters::publish() {
  UInt32 seen = writes_.fetch_add(1) + 1;
  for (;;) {
    setting_.store(setting());
    const UInt32 now = writes_.load();
    if (now == seen) return;
    seen = now;
  }
}

}  // namespace converter
