#pragma once

#include <array>
#include <cstdint>
#include <functional>
#include <memory>
#include <span>
#include <vector>

#include "contract/ConverterInterface.h"
#include "converter/unit/ConverterUnit.h"
#include "host/analysis/WaveformOverview.h"
#include "host/files/AudioSource.h"
#include "host/unit/Readings.h"

namespace host {

/// Overs are located to stretches of so many frames, counted from the source's first frame: less
/// than a column of any usual window.
inline constexpr std::int64_t overStretchFrames = 128;

/// How often one channel of a signal exceeds full scale between its samples within a stretch.
struct StretchOvers {
  Signal signal = Signal::Source;
  std::uint32_t channel = 0;
  /// The middle of the stretch, in frames of the source. What shows only when silence follows the
  /// last frame counts for the last stretch.
  std::int64_t frame = 0;
  std::uint32_t count = 0;
};

struct OfflineRunOptions {
  /// Chooses the encoder of the new unit; may throw `Failure`.
  std::function<void(AudioUnit unit)> chooseEncoder;
  /// The encoder is given the source times this.
  float gain = 1;
  /// Is shown the access units, all of them before `finish` returns. May be null.
  converter::BitStreamSink* sink = nullptr;
  /// Whether `overs` are located. That takes shorter blocks, which costs a little; the readings do
  /// not depend on it.
  bool locatesOvers = false;
};

/// Makes a new unit for a format; throws `Failure`.
using MakeUnit = std::function<std::unique_ptr<converter::ConverterUnit>(AudioFormat format)>;

/// One run of a source through a converter, from its first frame until its last one has left the
/// decoder, as fast as it goes. Who takes no further steps cancels it. One thread at a time.
class OfflineRun {
 public:
  /// Throws `Failure` when the unit cannot be made, or cannot do what was chosen.
  OfflineRun(AudioSource& source, const OfflineRunOptions& options);
  OfflineRun(AudioSource& source, const OfflineRunOptions& options, const MakeUnit& make);

  /// Renders the next block. False when there is none left.
  bool step();

  /// How much of the source has been metered, from 0 to 1.
  double share() const;
  /// Frames that the last step took from the source, gain applied, one plane per channel.
  const float* const* input() const { return input_.data(); }
  std::uint32_t inputFrames() const { return inputFrames_; }
  /// What the last step, or `finish`, found; valid until the next one.
  std::span<const StretchOvers> overs() const { return overs_; }
  /// Peaks and counts so far.
  velk::PeakStatistics peaks() const { return peakStatisticsOf(*unit_); }

  /// After the last step: meters the end and gives the readings, in which `file` stays empty.
  /// Throws `Failure` when a codec failed on the way or frames were missed, because the readings
  /// would be those of another signal.
  Readings finish();

  AudioUnit unit() { return unit_.get(); }

 private:
  std::int64_t nextBlock() const;
  std::int64_t metered() const;
  void take(std::uint32_t frames);
  void locateOvers(std::int64_t frame);

  AudioSource& source_;
  const AudioFormat format_;
  const float gain_;
  const bool locatesOvers_;
  const std::unique_ptr<converter::ConverterUnit> unit_;
  std::vector<float> interleaved_;
  std::array<std::vector<float>, 2> planes_;
  std::array<std::vector<float>, 2> encoded_;
  std::array<const float*, 2> input_{};
  std::uint32_t inputFrames_ = 0;
  bool sourceEnded_ = false;
  /// Frames so far: taken from the source, and rendered.
  std::int64_t taken_ = 0;
  std::int64_t rendered_ = 0;
  velk::PeakStatistics located_{};
  std::int64_t lastMiddle_ = 0;
  std::vector<StretchOvers> overs_;
};

}  // namespace host
