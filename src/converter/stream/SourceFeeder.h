#pragma once

#include "converter/stream/Worker.h"
#include "converter/transcoder/Latency.h"

namespace converter {

/// Cuts the source into blocks for the worker, with the changes of setting at their positions.
/// Audio thread.
class SourceFeeder {
 public:
  SourceFeeder(Worker& worker, const UnitFormat& unit)
      : worker_(worker), accessUnit_(accessUnitFrames(unit)) {}

  /// Makes `setting` the one in force from the next sample on. A change that comes within an
  /// access unit's length of the last one waits; the newest call after that takes effect.
  void request(const Setting& setting);

  /// Takes the next samples. When the worker is too far behind to take them they are lost to it;
  /// `wait` waits for it instead.
  void feed(const float* const* input, UInt32 channels, UInt32 frames, bool wait);

  /// Where the next sample lies.
  Position position() const { return position_; }

  /// Starts over at 0.
  void clear();

 private:
  void beginBlock(bool wait);

  Worker& worker_;
  UInt32 accessUnit_;
  Position position_ = 0;
  /// In force up to `position_`.
  Setting setting_;
  /// In force from `position_` on.
  std::optional<SettingChange> change_;
  /// Before which no further change begins.
  Position nextChange_ = 0;
  /// Being filled; null while samples are dropped.
  SourceBlock* block_ = nullptr;
  bool dropping_ = false;
};

}  // namespace converter
