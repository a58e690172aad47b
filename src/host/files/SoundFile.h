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

/// A sound file of any format that libsndfile reads: mono, stereo, or one or two channels out of
/// more. Samples that are not finite are read as silence.
class SoundFile : public AudioSource {
 public:
  /// `choice` says which channels to take if the file has more than two. Throws `TooManyChannels`
  /// if it is empty then, and `Failure` when the file is missing, empty, not audio, not an ordinary
  /// file, lacks a chosen channel, or has a sample rate that cannot be played.
  explicit SoundFile(const std::filesystem::path& path, ChannelChoice choice = {});
  ~SoundFile() override;

  AudioFormat format() const override { return format_; }
  std::int64_t frames() const override { return frames_; }
  std::size_t read(float* interleaved, std::size_t frames) override;
  void seek(std::int64_t frame) override;

  /// Whether the file has so far turned out to hold less than its header promises. Any thread.
  bool isTruncated() const { return *truncated_; }
  /// The same, for those who outlive the file.
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
  /// All that the file has. Without a choice the first ones are taken.
  std::size_t fileChannels_ = 0;
  /// A block with all channels of the file, where only some of them are taken.
  std::vector<float> wide_;
  std::int64_t frames_ = 0;
  bool isOgg_ = false;
  std::int64_t position_ = 0;
  std::shared_ptr<std::atomic<bool>> truncated_ = std::make_shared<std::atomic<bool>>(false);
};

/// Whether libsndfile's log of opening a file shows that the header promises more audio than the
/// file holds.
bool promisesMoreThanItHolds(std::string_view openingLog);

}  // namespace host
