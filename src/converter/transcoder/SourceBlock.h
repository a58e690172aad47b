#pragma once

#include <optional>

#include "converter/transcoder/AudioBlock.h"

namespace converter {

/// What the audio thread hands to the worker.
struct SourceBlock {
  AudioBlock audio;
  /// In force at the block's first sample.
  Setting setting;
  /// Inside the block; changes are at least as far apart, so there is never a second.
  std::optional<SettingChange> change;
};

}  // namespace converter
