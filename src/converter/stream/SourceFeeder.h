#pragma once

#include "converter/stream/Worker.h"
#include "converter/transcoder/Latency.h"

namespace converter {

/// Cuts the source into blocks for the worker and marks each change of setting at its position.
/// Audio thread.
class SourceFeeder {
 public:
  SourceFeeder(Worker& worker, const UnitFormat& unit)
      : worker_(worker), accessUnit_(accessUnitFrames(unit)) {}

  /// Puts `setting` into effect from the next sample on. Within an access unit's length of the last
  /// change it does nothing, so callers repeat the request with every block.
  void request(const Setting& setting);

  /// Passes on the next samples. Those that the queue has no room for are dropped; with patience
  /// it waits for room first.
  void feed(const float* const* input, UInt32 channels, UInt32 frames, Patience patience);

  /// Of the next sample.
  Position position() const { return position_; }

  /// Starts over at position 0. While the worker is stopped.
  void clear();

 private:
  void startBlock(Patience patience);

  Worker& worker_;
  UInt32 accessUnit_;
  Position position_ = 0;
  /// In effect up to `position_`.
  Setting setting_;
  /// To take effect at `position_`.
  std::optional<SettingChange> change_;
  /// No further change before this position.
  Position nextChange_ = 0;
  /// The block being filled; null while samples are dropped.
  SourceBlock* block_ = nullptr;
  bool dropping_ = false;
};

}  // namespace converter
