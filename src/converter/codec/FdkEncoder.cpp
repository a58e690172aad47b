#include <fdk-aac/aacenc_lib.h>

#include <algorithm>
#include <array>
#include <stdexcept>
#include <string>
#include <vector>

#include "converter/codec/CodecLibraries.h"
#include "converter/codec/Encoder.h"
#include "converter/codec/Pcm16.h"

namespace converter {
namespace {

struct CloseEncoder {
  void operator()(AACENCODER* encoder) const { aacEncClose(&encoder); }
};
using Handle = std::unique_ptr<AACENCODER, CloseEncoder>;

/// More than the largest access unit of two channels, 2 * 6144 bits.
constexpr std::size_t kLargestAccessUnit = 4096;

/// Audio bandwidth of LC in Hz; 0 leaves it to the encoder, which stops at 17 kHz at any bit rate.
/// Where the bits suffice, a wider band was measured to bring bright music closer to the source;
/// between 96 and 128 kbit/s per channel it is widened only as far as dark music does not suffer.
UINT lcBandwidth(std::uint32_t bitRatePerChannel, double sampleRate) {
  if (bitRatePerChannel >= 128000) return 20000;
  if (bitRatePerChannel < 96000) return 0;
  if (sampleRate == 44100) return 18000;
  return sampleRate == 48000 ? 19000 : 0;
}

UINT objectType(Format format) {
  switch (format) {
    case Format::lc:
      return AOT_AAC_LC;
    case Format::he:
      return AOT_SBR;
    case Format::heV2:
      return AOT_PS;
  }
  return AOT_AAC_LC;
}

/// Extra delay of HE's input, in samples. The encoder's own delay is odd, and a container that
/// counts samples at the core coder's half rate could not express where the source starts.
constexpr UInt32 kHeldBackByHe = 1;

/// Delays as measured band by band with the decoder in use: with band replication HE is one sample
/// earlier than the encoder reports.
CodecTiming timingOf(Format format) {
  switch (format) {
    case Format::lc:
      return {1024, 2048, 3, 0};
    case Format::he:
      return {2048, 5057 + kHeldBackByHe, 4, 0};
    case Format::heV2:
      return {2048, 7106, 5, 0};
  }
  return {1024, 2048, 3, 0};
}

void set(AACENCODER* encoder, AACENC_PARAM parameter, UINT value) {
  const AACENC_ERROR error = aacEncoder_SetParam(encoder, parameter, value);
  if (error != AACENC_OK) {
    throw std::runtime_error("the AAC encoder refuses parameter " + std::to_string(parameter) +
                             " = " + std::to_string(value) + " (error " + std::to_string(error) +
                             ")");
  }
}

void configure(AACENCODER* encoder, const Setting& setting, const UnitFormat& unit) {
  set(encoder, AACENC_AOT, objectType(setting.format));
  set(encoder, AACENC_SAMPLERATE, static_cast<UINT>(unit.sampleRate));
  set(encoder, AACENC_CHANNELMODE, unit.channels == 1 ? MODE_1 : MODE_2);
  set(encoder, AACENC_CHANNELORDER, 1);
  set(encoder, AACENC_TRANSMUX, TT_MP4_RAW);
  set(encoder, AACENC_AFTERBURNER, 1);
  switch (setting.strategy) {
    // The constant mode, whose access units vary as far as the decoder's buffer allows, is the only
    // one whose average holds. A peak rate on top of a VBR mode holds a cap, and averages half of
    // it on music.
    case Strategy::abr:
    case Strategy::constrainedVbr:
      set(encoder, AACENC_BITRATE, setting.bitRate);
      if (setting.format == Format::lc) {
        set(encoder, AACENC_BANDWIDTH,
            lcBandwidth(setting.bitRate / unit.channels, unit.sampleRate));
      }
      break;
    case Strategy::vbr:
      set(encoder, AACENC_BITRATEMODE, setting.vbrMode);
      break;
  }
}

/// Always hands the library exactly one frame: given smaller blocks, HEv2's output depends on their
/// sizes and the library may overflow its buffers.
class FdkEncoder final : public Encoder {
 public:
  FdkEncoder(const Setting& setting, const UnitFormat& unit)
      : timing_(timingOf(setting.format)),
        channels_(unit.channels),
        frame_(std::size_t{timing_.frameLength} * unit.channels),
        heldBack_(std::size_t{setting.format == Format::he ? kHeldBackByHe : 0} * unit.channels),
        input_(heldBack_ + frame_) {
    AACENCODER* encoder = nullptr;
    // 0, 0: room for all modules and channels. With less, the library overflows its buffers.
    const AACENC_ERROR opened = aacEncOpen(&encoder, 0, 0);
    handle_.reset(encoder);
    if (opened != AACENC_OK) throw std::runtime_error("the AAC encoder cannot be opened");
    configure(encoder, setting, unit);
    if (aacEncEncode(encoder, nullptr, nullptr, nullptr, nullptr) != AACENC_OK ||
        aacEncInfo(encoder, &info_) != AACENC_OK) {
      throw std::runtime_error("the AAC encoder refuses its setting");
    }
    if (info_.frameLength != timing_.frameLength) {
      throw std::runtime_error("the AAC encoder has an unexpected frame length");
    }
  }

  std::span<const std::uint8_t> encode(const float* const* planes) override {
    std::copy_n(input_.begin() + static_cast<std::ptrdiff_t>(frame_), heldBack_, input_.begin());
    interleavePcm16(planes, channels_, timing_.frameLength, input_.data() + heldBack_);
    void* inputs[] = {input_.data()};
    void* outputs[] = {output_.data()};
    INT inputKind[] = {IN_AUDIO_DATA};
    INT outputKind[] = {OUT_BITSTREAM_DATA};
    INT inputSize[] = {static_cast<INT>(frame_ * sizeof(std::int16_t))};
    INT outputSize[] = {static_cast<INT>(output_.size())};
    INT inputElement[] = {sizeof(std::int16_t)};
    INT outputElement[] = {sizeof(std::uint8_t)};
    const AACENC_BufDesc in{1, inputs, inputKind, inputSize, inputElement};
    const AACENC_BufDesc out{1, outputs, outputKind, outputSize, outputElement};
    AACENC_InArgs arguments{};
    arguments.numInSamples = static_cast<INT>(frame_);
    AACENC_OutArgs result{};
    if (aacEncEncode(handle_.get(), &in, &out, &arguments, &result) != AACENC_OK) return {};
    return {output_.data(), static_cast<std::size_t>(result.numOutBytes)};
  }

  std::span<const std::uint8_t> configuration() const override {
    return {info_.confBuf, info_.confSize};
  }

  CodecTiming timing() const override { return timing_; }

 private:
  Handle handle_;
  AACENC_InfoStruct info_{};
  CodecTiming timing_;
  UInt32 channels_;
  /// In samples of all channels together, like `heldBack_`.
  std::size_t frame_;
  std::size_t heldBack_;
  std::vector<std::int16_t> input_;
  std::array<std::uint8_t, kLargestAccessUnit> output_{};
};

}  // namespace

std::unique_ptr<Encoder> openEncoder(const Setting& setting, const UnitFormat& unit) {
  return std::make_unique<FdkEncoder>(setting, unit);
}

EncoderAbilities encoderAbilities() {
  return {.highEfficiency = true};
}

CodecLibrary encoderLibrary() {
  std::array<LIB_INFO, FDK_MODULE_LAST> modules{};
  FDKinitLibInfo(modules.data());
  aacEncGetLibInfo(modules.data());
  const auto encoder = std::ranges::find(modules, FDK_AACENC, &LIB_INFO::module_id);
  return {"FDK AAC encoder", encoder != modules.end() ? encoder->versionStr : "?",
          "FDK AAC licence"};
}

}  // namespace converter
