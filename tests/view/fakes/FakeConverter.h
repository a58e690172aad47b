#pragma once

#include <array>
#include <map>
#include <optional>
#include <utility>
#include <vector>

#include "audio_unit/Unit.h"
#include "contract/ConverterInterface.h"
#include "contract/EncoderPresets.h"
#include "view/fakes/CallLog.h"

namespace fakes {

enum class UnitCall { GetParameter, SetParameter, GetProperty, SetProperty };

/// A converter unit without audio: it honours the contract, records every call, fails when told
/// to, and announces what a real unit announces. A test may set its state directly, which announces
/// nothing.
///
/// A write of format or strategy announces the rate-or-quality parameter too, with no sender,
/// because its meaning may have changed.
class FakeConverter final : public audio_unit::Unit {
 public:
  using Setting = velk::EncoderSetting;

  explicit FakeConverter(CallLog& log);
  ~FakeConverter() override;

  CallLog& log() { return log_; }

  // State.
  std::array<float, 3> parameters = {0.0F, 1.0F, 14.0F};
  UInt32 monitorSource = 0;
  UInt32 listeningTestActive = 0;
  velk::PeakStatistics statistics;
  UInt32 channels = 2;
  float maximumFormat = 2.0F;
  /// The settings of the factory presets; no value stands for a null element.
  std::vector<std::optional<Setting>> presets;
  /// False: the read of the preset list succeeds and yields no array.
  bool givesPresetList = true;

  void setSetting(const Setting& setting);
  Setting setting() const;

  // Failures, by call and by parameter or property.
  void failOnce(UnitCall call, UInt32 id, OSStatus status);
  void failAlways(UnitCall call, UInt32 id, OSStatus status);
  void heal();

  // Changes from elsewhere: the host, an automation, another view. Logged as "host: unit.…".
  void hostSetsParameter(AudioUnitParameterID id, float value);
  void hostSetsSetting(const Setting& setting);
  void hostSetsProperty(AudioUnitPropertyID id, UInt32 value);
  void hostSetsPreset(std::size_t index);
  /// Announces a change without making one, with no sender.
  void announce(AudioUnitParameterID id);
  void announceChangeOf(AudioUnitPropertyID id) { announceProperty(id); }
  /// Announces a gesture on the parameter.
  void hostMakesGesture(AudioUnitParameterID id);

  // audio_unit::Unit
  OSStatus getParameter(AudioUnitParameterID id, AudioUnitScope scope, AudioUnitElement element,
                        AudioUnitParameterValue& value) override;
  OSStatus setParameter(AudioUnitParameterID id, AudioUnitScope scope, AudioUnitElement element,
                        AudioUnitParameterValue value, UInt32 bufferOffsetInFrames) override;
  OSStatus getProperty(AudioUnitPropertyID id, AudioUnitScope scope, AudioUnitElement element,
                       void* data, UInt32& size) override;
  OSStatus setProperty(AudioUnitPropertyID id, AudioUnitScope scope, AudioUnitElement element,
                       const void* data, UInt32 size) override;

 private:
  struct Failure {
    OSStatus status;
    bool always;
  };

  OSStatus failureFor(UnitCall call, UInt32 id);
  const char* caller() const { return fromHost_ ? "host: unit" : "unit"; }
  OSStatus makePresetList(void* data);
  OSStatus applyPreset(SInt32 number);
  template <class Work>
  void asHost(Work work);

  CallLog& log_;
  std::map<std::pair<UnitCall, UInt32>, Failure> failures_;
  bool fromHost_ = false;
  /// Set while the value for an announcement is read.
  bool announcing_ = false;
  std::vector<AUPreset> presetRecords_;
  CFStringRef presetName_;
};

}  // namespace fakes
