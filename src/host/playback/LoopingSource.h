#pragma once

#include <memory>
#include <optional>
#include <vector>

#include "host/files/AudioSource.h"
#include "host/playback/LoopRange.h"

namespace host {

/// A source in which one stretch repeats endlessly and without a click: its last frames cross-fade
/// into those before its start. Every round is exactly as long as the stretch, and all other frames
/// are the source's own. If the source has too few frames before the start, the stretch fades out
/// and in again instead. A fade never exceeds the samples it is made of, so it adds no overs. One
/// thread at a time.
class LoopingSource : public AudioSource {
 public:
  /// Length of the fade, unless the loop is shorter. 12 ms at 44.1 kHz.
  static constexpr std::int64_t kFadeFrames = 512;

  explicit LoopingSource(std::unique_ptr<AudioSource> source);

  AudioFormat format() const override { return source_->format(); }
  std::int64_t frames() const override { return source_->frames(); }
  /// Endless if the loop is ahead, unless the source ends before the loop does.
  std::size_t read(float* interleaved, std::size_t frames) override;
  /// From before the loop's end, reading runs into the loop; from its end on, to the source's end.
  void seek(std::int64_t frame) override;
  /// `loop` lies within the source; nothing for none. A `seek` has to follow.
  void setLoop(const std::optional<LoopRange>& loop);

 private:
  std::vector<float> readAt(std::int64_t start, std::int64_t count);
  void makeCrossFade(std::int64_t count);
  void makeDip(std::int64_t count);
  void rememberRound();
  std::int64_t readRound(float* interleaved, std::int64_t frames);
  void fadeIn(float* interleaved, std::int64_t start, std::int64_t count) const;
  std::int64_t copyFrames(const std::vector<float>& stretch, std::int64_t start, float* interleaved,
                          std::int64_t frames) const;

  std::unique_ptr<AudioSource> source_;
  std::int64_t channels_;
  std::optional<LoopRange> loop_;
  /// Replaces the loop's last frames, from `tailStart_` on.
  std::vector<float> tail_;
  std::int64_t tailStart_ = 0;
  /// Frames of the fade-in at the start of every round but the first.
  std::int64_t headFrames_ = 0;
  /// A whole short loop, for every round but the first.
  std::vector<float> round_;

  std::int64_t position_ = 0;
  bool loops_ = false;
  bool repeats_ = false;
};

}  // namespace host
