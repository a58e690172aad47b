#include "host/playback/ConvertedOutput.h"

#include "host/playback/RateConvertingRenderer.h"

namespace host {
namespace {

class ConvertedOutput : public Output {
 public:
  ConvertedOutput(const Device& device, AudioFormat format, std::uint32_t deviceRate,
                  BlockRenderer& renderer, const OpenDevice& open)
      : rate_(format.sampleRate),
        renderer_(renderer, format, deviceRate),
        output_(open(device, {deviceRate, format.channels}, renderer_)) {}

  std::string name() const override { return output_->name(); }
  bool isSilent() const override { return output_->isSilent(); }
  std::uint32_t sampleRate() const override { return output_->sampleRate(); }
  std::uint32_t latency() const override {
    const auto ofDevice = std::uint64_t{output_->latency()} * rate_ / output_->sampleRate();
    return renderer_.latency() + static_cast<std::uint32_t>(ofDevice);
  }
  Message failure() override { return output_->failure(); }

 private:
  const std::uint32_t rate_;
  RateConvertingRenderer renderer_;
  /// Destroyed before renderer_, which it plays.
  const std::unique_ptr<Output> output_;
};

}  // namespace

std::unique_ptr<Output> openAtItsRate(const Device& device, AudioFormat format,
                                      BlockRenderer& renderer, const OpenDevice& open) {
  const auto rate = playingRate(device, format.sampleRate);
  if (rate == format.sampleRate) return open(device, format, renderer);
  return std::make_unique<ConvertedOutput>(device, format, rate, renderer, open);
}

}  // namespace host
