#pragma once

#include <cstdint>
#include <memory>
#include <optional>

#include "audio_unit/Framework.h"
#include "host/files/OpenedFile.h"
#include "host/playback/Devices.h"
#include "host/playback/Output.h"
#include "host/playback/Player.h"
#include "host/unit/ConverterSetup.h"

namespace host {

/// One converter unit and what is played through it. Main thread only.
class Session {
 public:
  /// Blocks that the unit is made for.
  static constexpr std::uint32_t kMaximumFrames = unitBlockFrames;

  /// Makes the unit for the file's format. Throws `Failure`.
  explicit Session(OpenedFile file, OpenDevice open = openDevice);
  ~Session();

  /// Whether `load` takes the file; another format needs a session of its own.
  bool suits(const OpenedFile& file) const;
  /// Plays another file of the same format through the same unit and output.
  void load(OpenedFile file);

  converter::ConverterUnit& unit() { return *unit_; }
  Player& player() { return *player_; }
  const std::filesystem::path& path() const { return path_; }
  const ChannelChoice& channels() const { return channels_; }
  AudioFormat format() const { return format_; }
  AudioFormat originalFormat() const { return original_; }
  bool fileIsTruncated() const { return *truncated_; }

  /// Plays to the device, at another sample rate where it lacks the file's, or to nobody without
  /// one. Throws `Failure` and plays to nobody when the device cannot be opened.
  void setDevice(const std::optional<Device>& device);
  /// Plays to the first of the devices that works, or to nobody. Gives why there was no playing to
  /// the first of them when none works, else nothing.
  Message setFirstWorkingDevice(const std::vector<Device>& devices);
  /// The device that plays; nothing while nobody listens.
  const std::optional<Device>& device() const { return device_; }
  /// Ends the output.
  void stop();
  /// Null before a device was set.
  Output* output() { return output_.get(); }
  /// Looks after the output: when it has failed, goes on without a device. Gives why, once.
  Message checkOutput();
  /// What is heard of the output's playing; null for nothing.
  void setTap(AudioTap* tap);

 private:
  void startOutput(const std::optional<Device>& device);

  OpenDevice open_;
  std::filesystem::path path_;
  ChannelChoice channels_;
  AudioFormat format_;
  AudioFormat original_;
  std::shared_ptr<const std::atomic<bool>> truncated_;
  std::unique_ptr<converter::ConverterUnit> unit_;
  AudioTap* tap_ = nullptr;
  std::unique_ptr<Player> player_;
  std::optional<Device> device_;
  std::unique_ptr<Output> output_;
};

}  // namespace host
