#pragma once

#include <array>
#include <atomic>
#include <cstdint>
#include <limits>
#include <memory>
#include <optional>
#include <vector>

#include "audio_unit/TypedProperty.h"
#include "host/playback/BlockRenderer.h"
#include "host/playback/LoopRange.h"
#include "host/playback/StreamReader.h"

namespace converter {
class ConverterUnit;
}

namespace host {

/// Plays a source through a converter unit. Positions are in frames of the source and mean what is
/// heard: the unit's latency is run through before the first frame sounds, and at the end until the
/// last one has left the unit.
///
/// Everything but `renderBlock` on the main thread. Not playing, the player gives silence; it
/// starts and stops with a short fade wherever the unit is in mid-sound.
class Player : public BlockRenderer {
 public:
  /// The unit has to be made for the source's format with blocks of `maximumFrames`, and to live as
  /// long as the player.
  Player(converter::ConverterUnit& unit, std::uint32_t maximumFrames,
         std::unique_ptr<AudioSource> source);
  ~Player() override;

  AudioFormat format() const { return reader_.format(); }
  /// Where playing ends: the source's length, or less when it turned out shorter or a limit is set.
  std::int64_t length() const { return end_.load(std::memory_order_relaxed); }
  /// Ends at `frames` if the source does not end before.
  void limitLength(std::int64_t frames);
  /// Whether such a limit leaves some of the source out.
  bool isCutShort() const { return cutShort_; }

  /// Plays on; from the beginning after the end.
  void play();
  void pause();
  bool isPlaying() const { return wanted_.load() == Wanted::Sound && !isFinished(); }
  /// Whether the last frame was heard.
  bool isFinished() const { return finished_.load(std::memory_order_acquire); }
  /// Continues, playing or not, from `frame`. Resets the unit and runs it up to the place, so that
  /// what is heard and metered from there on is that of playing through it. From before the end of
  /// a loop playing runs into it; from behind it goes on to the end.
  void seek(std::int64_t frame);
  /// Repeats a stretch of the source from now on, or nothing. What is not within the source is cut
  /// off. From outside playing moves to the begin of the loop. What is heard repeats without a gap
  /// and without a click, each round exactly as long as the loop.
  void setLoop(std::optional<LoopRange> loop);
  const std::optional<LoopRange>& loop() const { return loop_; }
  /// The next frame to leave the unit.
  std::int64_t position() const { return placeOf(played_.load(std::memory_order_relaxed)); }
  /// The frame that sounds now from a device with this latency, in frames; the last one that did
  /// once the device has run dry.
  std::int64_t audiblePosition(std::uint32_t deviceLatency) const;
  /// Frames of silence because the source could not be read fast enough.
  std::uint64_t missedFrames() const { return missed_.load(std::memory_order_relaxed); }

  /// Whether blocks are rendered as fast as it goes: rendering then waits for the source and the
  /// codec. While no device runs.
  void setOffline(bool offline);
  /// Tells the player that a device calls `renderBlock` from now on, or does not any more.
  void setDeviceRuns(bool runs) { deviceRuns_ = runs; }
  /// Not owned; null for none. While no device runs.
  void setTap(AudioTap* tap) { tap_ = tap; }

  void renderBlock(float* const* planes, std::uint32_t frames) noexcept override;

 private:
  enum class Wanted { Silence, Sound };
  using Planes = std::array<float*, 2>;

  static constexpr std::int64_t unlimited = std::numeric_limits<std::int64_t>::max();

  void quiesce();
  void wake();
  /// The place in the source of a frame that follows `frames` behind the last seek.
  std::int64_t placeOf(std::int64_t frames) const;
  /// How many frames follow the last seek until playing ends.
  std::int64_t framesToPlay() const;
  /// Renders what lies before the place where playing starts: `leadIn` frames that are played to
  /// nobody, for codec and meters to have them behind them, and the unit's latency.
  void runUpTo(std::int64_t leadIn);
  void setUnitFlag(const audio_unit::Property<UInt32>& flag, bool on);
  /// Renders up to `frames` frames at the offset; fewer when the source is behind.
  std::uint32_t renderSound(float* const* planes, std::uint32_t offset,
                            std::uint32_t frames) noexcept;
  void feedUnit(const float* interleaved, std::size_t got, float* const* output,
                std::uint32_t offset, std::uint32_t frames) noexcept;
  std::uint32_t renderFadeOut(float* const* planes, std::uint32_t frames) noexcept;
  void fade(float* const* planes, std::uint32_t frames, float step) noexcept;

  converter::ConverterUnit& unit_;
  const std::uint32_t maximumFrames_;
  StreamReader reader_;
  AudioTap* tap_ = nullptr;
  bool deviceRuns_ = false;
  bool offline_ = false;
  bool cutShort_ = false;
  std::optional<LoopRange> loop_;
  /// Where the last seek went, and whether playing runs into the loop from there.
  std::int64_t origin_ = 0;
  bool loops_ = false;
  /// Where the device began to play, from silence, in frames since the last seek.
  std::int64_t start_ = 0;

  std::atomic<Wanted> wanted_{Wanted::Silence};
  std::atomic<bool> finished_{false};
  /// Frames that have left the unit since the last seek.
  std::atomic<std::int64_t> played_{0};
  std::atomic<std::int64_t> end_;
  std::atomic<std::uint64_t> missed_{0};
  /// Frames of silence rendered since the last one of sound.
  std::atomic<std::int64_t> silence_{0};

  /// The main thread keeps the audio thread out while it works on reader and unit.
  std::atomic<bool> suspended_{false};
  std::atomic<bool> rendering_{false};
  /// Whether the audio thread has faded out.
  std::atomic<bool> silent_{true};

  /// The audio thread's own.
  float gain_ = 1.0F;
  /// Frames of the source that the unit was given since the last seek, and how many there are.
  std::int64_t fed_ = 0;
  std::int64_t feedable_ = unlimited;
  std::vector<float> interleaved_;
  std::vector<float> planes_;
};

}  // namespace host
