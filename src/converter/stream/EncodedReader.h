#pragma once

#include <vector>

#include "converter/meters/Soundness.h"
#include "converter/stream/Worker.h"

namespace converter {

/// Reads the encoded signal from the worker's blocks by position. What arrives too late is replaced
/// by silence and dropped on arrival. Audio thread.
class EncodedReader {
 public:
  /// Allocates for reads of at most `maximumFrames`; reading does not.
  EncodedReader(Worker& worker, UInt32 maximumFrames);

  /// Writes the signal at [position, position + frames); positions never go back. With patience it
  /// first waits for what the worker can make of the source it has. Returns what was written, until
  /// the next call; the silence before position 0 counts as sound.
  Stretches read(Position position, UInt32 frames, float* const* output, UInt32 channels,
                 Patience patience);

 private:
  const AudioBlock* blockAt(Position position, Patience patience);
  void note(std::size_t frames, Soundness soundness);

  Worker& worker_;
  std::vector<Stretch> stretches_;
};

}  // namespace converter
