#pragma once

#include <span>

#include "converter/codec/Encoder.h"
#include "converter/stream/RenderControls.h"
#include "converter/stream/Renderer.h"
#include "converter/unit/ConverterUnit.h"
#include "converter/unit/Parameters.h"
#include "converter/unit/PropertyTable.h"

namespace converter {

/// The unit: parameters for every thread, properties for the one that uses the unit, a renderer for
/// the audio thread.
class AacConverter final : public ConverterUnit {
 public:
  /// The format has been found good.
  explicit AacConverter(const UnitFormat& format, const OpenEncoder& open = openEncoder,
                        realtime::ReadClock readClock = std::chrono::steady_clock::now);

  OSStatus getParameter(AudioUnitParameterID id, AudioUnitScope scope, AudioUnitElement element,
                        AudioUnitParameterValue& value) override;
  OSStatus setParameter(AudioUnitParameterID id, AudioUnitScope scope, AudioUnitElement element,
                        AudioUnitParameterValue value, UInt32 bufferOffsetInFrames) override;
  OSStatus getProperty(AudioUnitPropertyID id, AudioUnitScope scope, AudioUnitElement element,
                       void* data, UInt32& size) override;
  OSStatus setProperty(AudioUnitPropertyID id, AudioUnitScope scope, AudioUnitElement element,
                       const void* data, UInt32 size) override;

  /// All that the unit has, each in its one declaration.
  static std::span<const PropertyDeclaration> properties();

  UInt32 latency() const override { return renderer_.latency(); }
  void render(const float* const* input, float* const* output, UInt32 frames) noexcept override {
    renderer_.render(input, output, frames);
  }
  void reset() override { renderer_.reset(); }
  void waitForCodec() override { renderer_.waitForCodec(); }
  void finish() override { renderer_.finish(); }
  void setBitStreamSink(BitStreamSink* sink) override { renderer_.setBitStreamSink(sink); }

 private:
  OSStatus applyPreset(const AUPreset& preset);

  UnitFormat format_;
  UInt32 monitorSource_ = 0;
  UInt32 listeningTestActive_ = 0;
  UInt32 offlineRender_ = 0;
  UInt32 metering_ = 1;
  RenderControls controls_;
  Parameters parameters_;
  Renderer renderer_;
};

}  // namespace converter
