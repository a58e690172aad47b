#pragma once

#include <atomic>
#include <filesystem>
#include <memory>

#include "host/files/AudioSource.h"
#include "host/files/ChannelChoice.h"

namespace host {

/// A sound file made ready for a converter unit.
struct OpenedFile {
  std::filesystem::path path;
  /// At a rate that the unit does.
  std::unique_ptr<AudioSource> source;
  /// As it is in the file.
  AudioFormat original;
  /// Whether the file proved to hold less than it promises.
  std::shared_ptr<const std::atomic<bool>> truncated;
  /// What was chosen of its channels.
  ChannelChoice channels = {};
};

/// Of a file with more than two channels those of the choice are played. Throws `TooManyChannels`
/// when there is no choice, and `Failure` when the file cannot be played.
OpenedFile openedForPlaying(const std::filesystem::path& path, const ChannelChoice& choice = {});

}  // namespace host
