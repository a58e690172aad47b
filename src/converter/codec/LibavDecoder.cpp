#include <algorithm>
#include <array>
#include <vector>

#include "converter/codec/Decoder.h"
#include "converter/codec/LibavHandles.h"

namespace converter {
namespace {

/// libavcodec decodes mono HE to two equal channels, because parametric stereo could follow; planes
/// beyond the unit's channels are ignored.
class LibavDecoder final : public Decoder {
 public:
  LibavDecoder(std::span<const std::uint8_t> configuration, const UnitFormat& unit,
               UInt32 frameLength)
      : context_(makeContext(avcodec_find_decoder(AV_CODEC_ID_AAC))),
        packet_(av_packet_alloc()),
        frame_(av_frame_alloc()),
        channels_(unit.channels),
        frameLength_(frameLength) {
    require(packet_ && frame_, "no memory for a decoder");
    context_->extradata =
        static_cast<std::uint8_t*>(av_mallocz(configuration.size() + AV_INPUT_BUFFER_PADDING_SIZE));
    require(context_->extradata != nullptr, "no memory for a decoder");
    std::copy(configuration.begin(), configuration.end(), context_->extradata);
    context_->extradata_size = static_cast<int>(configuration.size());
    context_->request_sample_fmt = AV_SAMPLE_FMT_FLTP;
    require(avcodec_open2(context_.get(), nullptr, nullptr) == 0,
            "the AAC decoder cannot be opened");
  }

  const float* const* decode(std::span<const std::uint8_t> accessUnit) override {
    padded_.assign(accessUnit.size() + AV_INPUT_BUFFER_PADDING_SIZE, 0);
    std::copy(accessUnit.begin(), accessUnit.end(), padded_.begin());
    packet_->data = padded_.data();
    packet_->size = static_cast<int>(accessUnit.size());
    if (avcodec_send_packet(context_.get(), packet_.get()) != 0) return nullptr;
    if (avcodec_receive_frame(context_.get(), frame_.get()) != 0) return nullptr;
    const bool expected = frame_->format == AV_SAMPLE_FMT_FLTP &&
                          frame_->nb_samples == static_cast<int>(frameLength_) &&
                          frame_->ch_layout.nb_channels >= static_cast<int>(channels_);
    if (!expected) return nullptr;
    for (UInt32 channel = 0; channel < channels_; ++channel) {
      planes_[channel] = reinterpret_cast<const float*>(frame_->extended_data[channel]);
    }
    return planes_.data();
  }

 private:
  CodecContext context_;
  Packet packet_;
  Frame frame_;
  UInt32 channels_;
  UInt32 frameLength_;
  std::vector<std::uint8_t> padded_;
  std::array<const float*, 2> planes_{};
};

}  // namespace

std::unique_ptr<Decoder> openDecoder(std::span<const std::uint8_t> configuration,
                                     const UnitFormat& unit, UInt32 frameLength) {
  return std::make_unique<LibavDecoder>(configuration, unit, frameLength);
}

}  // namespace converter
