#pragma once

#include <cstddef>
#include <cstdint>
#include <limits>
#include <vector>

namespace host {

enum class Signal : std::uint8_t { Source, Encoded };

/// What one column of a drawn waveform shows.
struct WaveformColumn {
  /// The extremes of its samples. `minimum` is above `maximum` where no sample is known.
  float minimum = std::numeric_limits<float>::infinity();
  float maximum = -std::numeric_limits<float>::infinity();
  std::uint32_t sourceOvers = 0;
  std::uint32_t encodedOvers = 0;

  bool hasSamples() const { return minimum <= maximum; }
};

/// The shape of a signal at every resolution, and where the signal and its encoded version exceed
/// full scale. It is built while a file is read, takes the same memory however long the file is,
/// and answers for any stretch in a time that grows with the number of columns, not with the
/// length.
///
/// It keeps the extremes of equal stretches of the signal, the buckets, whose length doubles
/// whenever there would be too many of them. One thread at a time.
class WaveformOverview {
 public:
  /// 9 MiB for two channels. Ten minutes at 48 kHz have buckets of 128 frames, ten hours of 8192.
  static constexpr std::size_t kDefaultBuckets = std::size_t{1} << 18U;

  /// `maximumBuckets` is per channel, a power of two, at least 2.
  explicit WaveformOverview(std::uint32_t channels, std::size_t maximumBuckets = kDefaultBuckets);

  std::uint32_t channels() const { return static_cast<std::uint32_t>(pyramids_.size()); }
  /// Frames taken so far.
  std::int64_t frames() const { return frames_; }
  /// The finest resolution available now.
  std::int64_t framesPerBucket() const { return bucketFrames_; }

  /// Takes the next frames, one plane of samples per channel.
  void append(const float* const* planes, std::size_t frames);
  /// Takes the next frames, interleaved.
  void append(const float* interleaved, std::size_t frames);

  /// Adds overs at a frame, which may lie beyond those taken so far.
  void addOvers(Signal signal, std::uint32_t channel, std::int64_t frame, std::uint32_t count = 1);
  /// Removes the overs of one signal, for instance because the encoder has changed.
  void clearOvers(Signal signal);

  /// Divides the frames from `begin` up to `end` evenly into `count` columns. A bucket that lies in
  /// two columns counts for both, so that no peak or over is lost at any resolution.
  std::vector<WaveformColumn> columns(std::uint32_t channel, std::int64_t begin, std::int64_t end,
                                      std::size_t count) const;

 private:
  /// The finest level first; a bucket of each level sums up sixteen of the level before.
  using Pyramid = std::vector<std::vector<WaveformColumn>>;

  template <class SampleAt>
  void take(std::size_t frames, SampleAt sampleAt);
  void add(Pyramid& pyramid, std::size_t bucket, const WaveformColumn& column);
  std::size_t bucketFor(std::int64_t frame);
  void halveResolution();
  static WaveformColumn sum(const Pyramid& pyramid, std::size_t begin, std::size_t end);

  std::size_t maximumBuckets_;
  std::vector<Pyramid> pyramids_;
  std::int64_t frames_ = 0;
  std::int64_t bucketFrames_ = 1;
};

}  // namespace host
