#pragma once

#include <atomic>
#include <filesystem>
#include <memory>

#include "host/files/AudioSource.h"
#include "host/files/ChannelChoice.h"

namespace host {

/// A sound file, ready for a converter unit.
struct OpenedFile {
  std::filesystem::path path;
  /// At a sample rate that the unit supports.
  std::unique_ptr<AudioSource> source;
  /// The format of the file itself.
  AudioFormat original;
  /// Whether the file has turned out to hold less than it promises.
  std::shared_ptr<const std::atomic<bool>> truncated;
  /// The channels that were chosen, if it has more than two.
  ChannelChoice channels = {};
};

/// Opens a file. Of more than two channels it takes those that were chosen. Throws
/// `TooManyChannels` when none were, and `Failure` when the file cannot be played.
OpenedFile openForPlaying(const std::filesystem::path& path, const ChannelChoice& choice = {});

}  // namespace host
