#pragma once

#include "converter/stream/Worker.h"

namespace converter {

/// Reads the encoded signal from the worker's blocks by position. What arrives too late is replaced
/// by silence and dropped on arrival. Audio thread.
class EncodedReader {
 public:
  explicit EncodedReader(Worker& worker) : worker_(worker) {}

  /// Writes the signal at [position, position + frames); positions never go back. Returns how many
  /// frames were missing, not counting the silence before position 0. With `wait` it first waits
  /// for all that the worker can make of the source it has.
  UInt32 read(Position position, UInt32 frames, float* const* output, UInt32 channels, bool wait);

 private:
  const AudioBlock* blockAt(Position position, bool wait);

  Worker& worker_;
};

}  // namespace converter
