#pragma once

#include <memory>

#include "converter/unit/AacConverter.h"
#include "host/files/AudioSource.h"
#include "host/unit/ConverterSetup.h"

/// An encoder that makes a number of access units and then no more.
class DyingEncoder final : public converter::Encoder {
 public:
  DyingEncoder(std::unique_ptr<converter::Encoder> real, int lifetime)
      : real_(std::move(real)), left_(lifetime) {}

  std::span<const std::uint8_t> encode(const float* const* planes) override {
    const auto unit = real_->encode(planes);
    return left_-- > 0 ? unit : std::span<const std::uint8_t>();
  }
  std::span<const std::uint8_t> configuration() const override { return real_->configuration(); }
  converter::CodecTiming timing() const override { return real_->timing(); }

 private:
  std::unique_ptr<converter::Encoder> real_;
  int left_;
};

/// A unit whose codec dies after some twenty thousand frames.
inline std::unique_ptr<converter::ConverterUnit> unitWithDyingCodec(host::AudioFormat format) {
  static constexpr int lifetime = 20;
  converter::UnitFormat unit;
  unit.sampleRate = format.sampleRate;
  unit.channels = format.channels;
  unit.maximumFrames = host::unitBlockFrames;
  return std::make_unique<converter::AacConverter>(
      unit, [](const converter::Setting& setting, const converter::UnitFormat& of) {
        return std::make_unique<DyingEncoder>(converter::openEncoder(setting, of), lifetime);
      });
}
