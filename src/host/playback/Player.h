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

/// Plays a source through a converter unit. Positions are frames of the source as they are heard:
/// the unit's latency is rendered before the first frame sounds, and at the end the player goes on
/// until the last frame has left the unit.
///
/// All but `renderBlock` is for the main thread. While not playing, the player renders silence; it
/// starts and stops with a short fade wherever the unit is in mid-sound.
class Player : public BlockRenderer {
 public:
  /// The unit must be made for the source's format and blocks of `maximumFrames`, and must outlive
  /// the player.
  Player(converter::ConverterUnit& unit, std::uint32_t maximumFrames,
         std::unique_ptr<AudioSource> source);
  ~Player() override;

  AudioFormat format() const { return reader_.format(); }
  /// Where playing ends: the source's length, or less if it turned out shorter or a limit is set.
  std::int64_t length() const { return end_.load(std::memory_order_relaxed); }
  /// Ends playing at `frames` if the source does not end before.
  void limitLength(std::int64_t frames);
  /// Whether such a limit cuts off a part of the source.
  bool isCutShort() const { return cutShort_; }

  /// Plays from the current position; from the beginning if the end was reached.
  void play();
  void pause();
  bool isPlaying() const { return wanted_.load() == Wanted::Sound && !isFinished(); }
  /// Whether the last frame has been rendered.
  bool isFinished() const { return finished_.load(std::memory_order_acquire); }
  /// Continues, playing or not, from `frame`. Resets the unit and runs it up to that position, so
  /// that what is heard and metered from there on is as if playing had passed through it. From
  /// before a loop's end, playing runs into the loop; from its end on, to the end of the source.
  void seek(std::int64_t frame);
  /// Repeats a stretch of the source from now on, or nothing. The loop is clipped to the source. A
  /// position outside moves to the loop's start. The loop is heard without a gap or a click, each
  /// round exactly as long as the stretch.
  void setLoop(std::optional<LoopRange> loop);
  const std::optional<LoopRange>& loop() const { return loop_; }
  /// The next frame to leave the unit.
  std::int64_t position() const { return placeOf(played_.load(std::memory_order_relaxed)); }
  /// The frame that is heard now from a device with this latency, in frames; once the device has
  /// run dry, the end of what was heard.
  std::int64_t audiblePosition(std::uint32_t deviceLatency) const;
  /// Frames replaced by silence because the source could not be read fast enough.
  std::uint64_t missedFrames() const { return missed_.load(std::memory_order_relaxed); }

  /// Whether to render as fast as possible; rendering then waits for the source and the codec. Only
  /// while no device runs.
  void setOffline(bool offline);
  /// Tells the player whether a device calls `renderBlock` from now on.
  void setDeviceRuns(bool runs) { deviceRuns_ = runs; }
  /// Not owned; null for none. Only while no device runs.
  void setTap(AudioTap* tap) { tap_ = tap; }

  void renderBlock(float* const* planes, std::uint32_t frames) noexcept override;

 private:
  enum class Wanted { Silence, Sound };
  using Planes = std::array<float*, 2>;

  static constexpr std::int64_t unlimited = std::numeric_limits<std::int64_t>::max();

  void suspend();
  void resume();
  /// The position in the source, `frames` frames after the last seek.
  std::int64_t placeOf(std::int64_t frames) const;
  /// The number of frames from the last seek until playing ends.
  std::int64_t framesToPlay() const;
  /// Renders, unheard and unmetered, what precedes the position where playing starts: `leadIn`
  /// frames as history for codec and meters, and the unit's latency.
  void runUpTo(std::int64_t leadIn);
  void setUnitFlag(const audio_unit::Property<UInt32>& flag, bool on);
  /// Renders up to `frames` frames at the offset and returns how many; fewer if the source is late.
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
  /// The target of the last seek, and whether playing runs into the loop from there.
  std::int64_t origin_ = 0;
  bool loops_ = false;
  /// Where playing last started from silence, in frames since the last seek.
  std::int64_t start_ = 0;

  std::atomic<Wanted> wanted_{Wanted::Silence};
  std::atomic<bool> finished_{false};
  /// Frames that have left the unit since the last seek.
  std::atomic<std::int64_t> played_{0};
  std::atomic<std::int64_t> end_;
  std::atomic<std::uint64_t> missed_{0};
  /// Frames of silence rendered since the last one of sound.
  std::atomic<std::int64_t> silence_{0};

  /// Set by the main thread to keep the audio thread out while it uses the reader and the unit.
  std::atomic<bool> suspended_{false};
  std::atomic<bool> rendering_{false};
  /// Whether the audio thread has faded out.
  std::atomic<bool> silent_{true};

  /// The audio thread's own.
  float gain_ = 1.0F;
  /// Frames of the source fed to the unit since the last seek, and how many there are to feed.
  std::int64_t fed_ = 0;
  std::int64_t feedable_ = unlimited;
  std::vector<float> interleaved_;
  std::vector<float> planes_;
};

}  // namespace host
