#include <algorithm>
#include <array>

#include "converter/codec/CodecLibraries.h"
#include "converter/codec/Encoder.h"
#include "converter/codec/LibavHandles.h"
#include "converter/codec/Pcm16.h"

namespace converter {
namespace {

constexpr CodecTiming kTiming{1024, 1024, 3, 1};

/// Quality scales of the five modes: about 72 to 310 kbit/s for 44.1 kHz stereo.
constexpr std::array<double, 5> kQualityScales = {0.5, 0.75, 1.0, 1.4, 2.0};

/// LC only: libavcodec's encoder accepts the other profiles but encodes LC all the same.
class LibavEncoder final : public Encoder {
 public:
  LibavEncoder(const Setting& setting, const UnitFormat& unit)
      : context_(makeContext(avcodec_find_encoder(AV_CODEC_ID_AAC))),
        packet_(av_packet_alloc()),
        frame_(av_frame_alloc()),
        channels_(unit.channels) {
    require(packet_ && frame_, "no memory for an encoder");
    context_->sample_rate = static_cast<int>(unit.sampleRate);
    context_->sample_fmt = AV_SAMPLE_FMT_FLTP;
    context_->flags |= AV_CODEC_FLAG_GLOBAL_HEADER;
    av_channel_layout_default(&context_->ch_layout, static_cast<int>(unit.channels));
    if (setting.strategy == Strategy::vbr) {
      context_->flags |= AV_CODEC_FLAG_QSCALE;
      context_->global_quality =
          static_cast<int>(kQualityScales.at(setting.vbrMode - 1U) * FF_QP2LAMBDA);
    } else {
      context_->bit_rate = setting.bitRate;
    }
    require(avcodec_open2(context_.get(), nullptr, nullptr) == 0,
            "the AAC encoder cannot be opened");
    require(context_->frame_size == static_cast<int>(kTiming.frameLength) &&
                context_->initial_padding == static_cast<int>(kTiming.delay),
            "the AAC encoder has an unexpected frame length or delay");
    frame_->nb_samples = context_->frame_size;
    frame_->format = AV_SAMPLE_FMT_FLTP;
    frame_->sample_rate = context_->sample_rate;
    require(av_channel_layout_copy(&frame_->ch_layout, &context_->ch_layout) == 0 &&
                av_frame_get_buffer(frame_.get(), 0) == 0,
            "no memory for an encoder");
  }

  std::span<const std::uint8_t> encode(const float* const* planes) override {
    av_packet_unref(packet_.get());
    if (av_frame_make_writable(frame_.get()) != 0) return {};
    for (UInt32 channel = 0; channel < channels_; ++channel) {
      std::transform(planes[channel], planes[channel] + kTiming.frameLength,
                     reinterpret_cast<float*>(frame_->extended_data[channel]), toEncodable);
    }
    frame_->pts = nextTime_;
    nextTime_ += kTiming.frameLength;
    if (avcodec_send_frame(context_.get(), frame_.get()) != 0 ||
        avcodec_receive_packet(context_.get(), packet_.get()) != 0) {
      return {};
    }
    return {packet_->data, static_cast<std::size_t>(packet_->size)};
  }

  std::span<const std::uint8_t> configuration() const override {
    return {context_->extradata, static_cast<std::size_t>(context_->extradata_size)};
  }

  CodecTiming timing() const override { return kTiming; }

 private:
  CodecContext context_;
  Packet packet_;
  Frame frame_;
  UInt32 channels_;
  std::int64_t nextTime_ = 0;
};

}  // namespace

std::unique_ptr<Encoder> openEncoder(const Setting& setting, const UnitFormat& unit) {
  return std::make_unique<LibavEncoder>(setting, unit);
}

EncoderAbilities encoderAbilities() {
  return {};
}

CodecLibrary encoderLibrary() {
  return decoderLibrary();
}

}  // namespace converter
