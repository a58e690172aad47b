#pragma once

#include <memory>
#include <optional>
#include <vector>

#include "host/files/AudioSource.h"
#include "host/playback/LoopRange.h"

namespace host {

/// A source in which one stretch repeats without end and without a click: its last frames fade over
/// into those before its begin. Every round is exactly as long as the stretch, and all other frames
/// are the source's own. Where too little lies before the begin, the stretch fades out and in again
/// instead. A fade never exceeds what it is made of, so that a join adds no overs.
class LoopingSource : public AudioSource {
 public:
  /// Frames of the fade, or the length of a shorter loop. 12 ms at 44.1 kHz.
  static constexpr std::int64_t kFadeFrames = 512;

  explicit LoopingSource(std::unique_ptr<AudioSource> source);

  AudioFormat format() const override { return source_->format(); }
  std::int64_t frames() const override { return source_->frames(); }
  /// Without end once a loop has begun, unless the source fails to give what it promised.
  std::size_t read(float* interleaved, std::size_t frames) override;
  /// From before the end of the loop reading runs into it; from behind it goes on to the end.
  void seek(std::int64_t frame) override;
  /// The loop, within the source; nothing for none. A `seek` has to follow.
  void setLoop(const std::optional<LoopRange>& loop);

 private:
  std::vector<float> framesAt(std::int64_t begin, std::int64_t count);
  void makeCrossFade(std::int64_t count);
  void makeDip(std::int64_t count);
  void rememberRound();
  std::int64_t readRound(float* interleaved, std::int64_t frames);
  void fadeIn(float* interleaved, std::int64_t begin, std::int64_t count) const;
  std::int64_t copied(const std::vector<float>& stretch, std::int64_t begin, float* interleaved,
                      std::int64_t frames) const;

  std::unique_ptr<AudioSource> source_;
  std::int64_t channels_;
  std::optional<LoopRange> loop_;
  /// Takes the place of the loop's last frames.
  std::vector<float> tail_;
  /// Begin of `tail_`.
  std::int64_t tailBegin_ = 0;
  /// Frames that fade in at the begin of every round but the first.
  std::int64_t headFrames_ = 0;
  /// All of a short loop, for every round but the first.
  std::vector<float> round_;

  std::int64_t position_ = 0;
  bool loops_ = false;
  bool repeats_ = false;
};

}  // namespace host
