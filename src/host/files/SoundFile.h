#pragma once

#include <atomic>
#include <filesystem>
#include <memory>
#include <string_view>
#include <vector>

#include "host/files/AudioSource.h"
#include "host/files/ChannelChoice.h"
#include "host/files/QuietSoundFile.h"

namespace host {

/// A sound file of any format that libsndfile reads: mono, stereo, or one or two channels of more.
/// Samples that are not finite come out as silence.
class SoundFile : public AudioSource {
 public:
  /// `choice` says which channels are taken of a file that has more than two; others are read as
  /// they are. Throws `TooManyChannels` when there is none for such a file, and `Failure` when the
  /// file is missing, empty, no audio, no ordinary file, lacks a chosen channel, or has a sample
  /// rate that cannot be played.
  explicit SoundFile(const std::filesystem::path& path, ChannelChoice choice = {});
  ~SoundFile() override;

  AudioFormat format() const override { return format_; }
  std::int64_t frames() const override { return frames_; }
  std::size_t read(float* interleaved, std::size_t frames) override;
  void seek(std::int64_t frame) override;

  /// Whether the file holds less than its header promises, as far as that has shown yet. Any
  /// thread.
  bool isTruncated() const { return *truncated_; }
  /// The same for whoever outlives the file.
  std::shared_ptr<const std::atomic<bool>> truncation() const { return truncated_; }

 private:
  void open();
  void chooseChannels();
  std::int64_t countFrames();
  std::int64_t readFrames(float* interleaved, std::int64_t frames);

  std::filesystem::path path_;
  ChannelChoice choice_;
  OpenSoundFile file_;
  AudioFormat format_;
  /// As many as the file has. The first ones are those that are taken, unless there is a choice.
  std::size_t fileChannels_ = 0;
  /// Frames of the whole file, where only some of its channels are taken.
  std::vector<float> wide_;
  std::int64_t frames_ = 0;
  bool isOgg_ = false;
  std::int64_t position_ = 0;
  std::shared_ptr<std::atomic<bool>> truncated_ = std::make_shared<std::atomic<bool>>(false);
};

/// Whether libsndfile's log of opening a file says that the header promises more audio than the
/// file holds.
bool promisesMoreThanItHolds(std::string_view openingLog);

}  // namespace host
