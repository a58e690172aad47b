#pragma once

extern "C" {
#include <libavcodec/avcodec.h>
#include <libavutil/channel_layout.h>
#include <libavutil/mem.h>
}

#include <memory>
#include <stdexcept>
#include <string>

namespace converter {

struct FreeLibav {
  void operator()(AVCodecContext* context) const { avcodec_free_context(&context); }
  void operator()(AVFrame* frame) const { av_frame_free(&frame); }
  void operator()(AVPacket* packet) const { av_packet_free(&packet); }
};
using CodecContext = std::unique_ptr<AVCodecContext, FreeLibav>;
using Frame = std::unique_ptr<AVFrame, FreeLibav>;
using Packet = std::unique_ptr<AVPacket, FreeLibav>;

/// Throws `std::runtime_error` with the message `what` unless `done`.
inline void require(bool done, const char* what) {
  if (!done) throw std::runtime_error(std::string("libavcodec: ") + what);
}

/// A context that works on the calling thread and logs nothing.
inline CodecContext makeContext(const AVCodec* codec) {
  require(codec != nullptr, "no AAC codec");
  CodecContext context(avcodec_alloc_context3(codec));
  require(context != nullptr, "no memory for a codec");
  context->thread_count = 1;
  context->log_level_offset = AV_LOG_TRACE + 1;
  return context;
}

}  // namespace converter
