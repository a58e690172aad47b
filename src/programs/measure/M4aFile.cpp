#include "programs/measure/M4aFile.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <utility>

extern "C" {
#include <libavformat/avformat.h>
}

#include "host/messages/Failure.h"

namespace host::measure {
namespace {

std::string reason(int error) {
  std::array<char, AV_ERROR_MAX_STRING_SIZE> text{};
  return av_make_error_string(text.data(), text.size(), error);
}

/// Samples per access unit of the core signal, whose rate band replication doubles. The track
/// counts time in core samples: players disagree about what an edit list means in any others.
constexpr int coreFrameLength = 1024;

struct FreePacket {
  void operator()(AVPacket* packet) const { av_packet_free(&packet); }
};

}  // namespace

struct M4aFile::Muxer {
  Muxer() = default;
  Muxer(const Muxer&) = delete;
  Muxer& operator=(const Muxer&) = delete;
  ~Muxer() {
    if (context == nullptr) return;
    if (context->pb != nullptr) avio_closep(&context->pb);
    avformat_free_context(context);
  }

  /// These return 0 or a negative error code of the library.
  int open(const char* path, const converter::BitStream& stream) {
    // A made-up name, because the library would remark on that of the temporary file.
    int error = avformat_alloc_output_context2(&context, nullptr, "ipod", "bits.m4a");
    if (error < 0) return error;
    // The same input gives the same file.
    context->flags |= AVFMT_FLAG_BITEXACT;
    track = avformat_new_stream(context, nullptr);
    packet.reset(av_packet_alloc());
    if (track == nullptr || !packet) return AVERROR(ENOMEM);
    source = {1, static_cast<int>(std::lround(stream.sampleRate))};
    const auto rate = source.den * coreFrameLength / static_cast<int>(stream.frameLength);
    auto& parameters = *track->codecpar;
    parameters.codec_type = AVMEDIA_TYPE_AUDIO;
    parameters.codec_id = AV_CODEC_ID_AAC;
    parameters.sample_rate = rate;
    av_channel_layout_default(&parameters.ch_layout, static_cast<int>(stream.channels));
    parameters.frame_size = coreFrameLength;
    parameters.extradata = static_cast<std::uint8_t*>(
        av_mallocz(stream.configuration.size() + AV_INPUT_BUFFER_PADDING_SIZE));
    if (parameters.extradata == nullptr) return AVERROR(ENOMEM);
    std::copy(stream.configuration.begin(), stream.configuration.end(), parameters.extradata);
    parameters.extradata_size = static_cast<int>(stream.configuration.size());
    track->time_base = {1, rate};
    error = avio_open(&context->pb, path, AVIO_FLAG_WRITE);
    if (error < 0) return error;
    // So that the edit list is exact to the sample, not just to the millisecond.
    AVDictionary* options = nullptr;
    av_dict_set_int(&options, "movie_timescale", rate, 0);
    error = avformat_write_header(context, &options);
    av_dict_free(&options);
    return error;
  }

  int write(const converter::AccessUnit& unit, std::int64_t end) {
    const auto inTrack = [&](std::int64_t frame, AVRounding rounding) {
      return av_rescale_q_rnd(frame, source, track->time_base, rounding);
    };
    // The bytes are not reference-counted, so the muxer makes its own copy.
    packet->data = const_cast<std::uint8_t*>(unit.bytes.data());
    packet->size = static_cast<int>(unit.bytes.size());
    // The source may end between two samples of the track.
    packet->pts = packet->dts = inTrack(unit.position, AV_ROUND_UP);
    packet->duration = inTrack(end, AV_ROUND_UP) - packet->pts;
    packet->flags = AV_PKT_FLAG_KEY;
    packet->stream_index = track->index;
    const int error = av_write_frame(context, packet.get());
    return error < 0 ? error : context->pb->error;
  }

  int close() {
    int error = av_write_trailer(context);
    const int closing = avio_closep(&context->pb);
    return error < 0 ? error : closing;
  }

  AVFormatContext* context = nullptr;
  AVStream* track = nullptr;
  AVRational source{1, 1};
  std::unique_ptr<AVPacket, FreePacket> packet;
};

M4aFile::M4aFile(std::unique_ptr<AtomicFile> file, std::int64_t frames, std::uint32_t sampleRate)
    : target_(std::move(file)), sourceFrames_(frames), sourceRate_(sampleRate) {}

M4aFile::~M4aFile() = default;

void M4aFile::startStream(const converter::BitStream& stream) noexcept {
  if (muxer_) return fail("the encoder began anew");
  configuration_.assign(stream.configuration.begin(), stream.configuration.end());
  stream_ = stream;
  stream_.configuration = configuration_;
  frames_ = av_rescale_rnd(sourceFrames_, std::lround(stream.sampleRate), sourceRate_, AV_ROUND_UP);
}

void M4aFile::writeAccessUnit(const converter::AccessUnit& unit) noexcept {
  // A player needs nothing that comes after the last frame.
  if (!error_.empty() || unit.position >= frames_) return;
  int error = 0;
  if (!muxer_) {
    muxer_ = std::make_unique<Muxer>();
    error = muxer_->open(target_->temporaryPath().c_str(), stream_);
    next_ = unit.position;
  }
  if (unit.position != next_) return fail("the encoder left a gap");
  next_ += stream_.frameLength;
  if (error >= 0) error = muxer_->write(unit, std::min(next_, frames_));
  if (error < 0) fail(reason(error));
}

void M4aFile::fail(const std::string& why) noexcept {
  if (error_.empty()) error_ = why;
}

void M4aFile::finish() {
  if (error_.empty() && (!muxer_ || next_ < frames_)) fail("the encoder ended before the source");
  if (error_.empty()) {
    const int error = muxer_->close();
    if (error < 0) fail(reason(error));
  }
  if (!error_.empty()) {
    throw Failure("cannot write '" + target_->path().string() + "': " + error_ +
                  "; nothing was kept");
  }
  target_->commit();
}

}  // namespace host::measure
