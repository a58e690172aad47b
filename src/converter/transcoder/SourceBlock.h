#pragma once

#include <optional>

#include "converter/transcoder/AudioBlock.h"

namespace converter {

/// A block of the source, from the audio thread to the worker.
struct SourceBlock {
  AudioBlock audio;
  /// In effect at the block's first sample.
  Setting setting;
  /// A change inside the block. There is never a second: changes are at least a block apart.
  std::optional<SettingChange> change;
};

}  // namespace converter
