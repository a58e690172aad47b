#pragma once

#include "converter/stream/Worker.h"

namespace converter {

/// Takes the encoded signal from the worker's blocks by position. What has not come in time is
/// silence, and is dropped when it comes. Audio thread.
class EncodedReader {
 public:
  explicit EncodedReader(Worker& worker) : worker_(worker) {}

  /// Writes the signal at [position, position + frames); positions only ever rise. Returns how many
  /// frames were missing; the silence before position 0 is none of them. `wait` waits for what the
  /// worker can make of the samples that it has been given.
  UInt32 read(Position position, UInt32 frames, float* const* output, UInt32 channels, bool wait);

 private:
  const AudioBlock* blockAt(Position position, bool wait);

  Worker& worker_;
};

}  // namespace converter
