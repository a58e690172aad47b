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

/// A converter unit and the file that is played through it. Main thread only.
class Session {
 public:
  /// The unit's largest block.
  static constexpr std::uint32_t kMaximumFrames = unitBlockFrames;

  /// Makes the unit for the file's format. Throws `Failure`.
  explicit Session(OpenedFile file, OpenDevice open = openDevice);
  ~Session();

  /// Whether `load` can take the file. Another format needs a session of its own.
  bool canLoad(const OpenedFile& file) const;
  /// Plays another file of the same format through the same unit and output.
  void load(OpenedFile file);

  converter::ConverterUnit& unit() { return *unit_; }
  Player& player() { return *player_; }
  const std::filesystem::path& path() const { return path_; }
  const ChannelChoice& channels() const { return channels_; }
  AudioFormat format() const { return format_; }
  AudioFormat originalFormat() const { return original_; }
  bool fileIsTruncated() const { return *truncated_; }

  /// Plays to the device, converted if it does not support the file's sample rate; without a
  /// device, silently. If the device cannot be opened, plays silently and throws `Failure`.
  void setDevice(const std::optional<Device>& device);
  /// Plays to the first of the devices that works. If none does, plays silently and returns why the
  /// first one failed; otherwise returns nothing.
  Message setFirstWorkingDevice(const std::vector<Device>& devices);
  /// The device in use; nothing while playing silently.
  const std::optional<Device>& device() const { return device_; }
  /// Destroys the output.
  void stop();
  /// Null before the first device is set and after `stop`.
  Output* output() { return output_.get(); }
  /// If the output has failed, goes on silently and returns why, once; otherwise returns nothing.
  /// Call it regularly.
  Message checkOutput();
  /// Sends what is played to `tap`, too. Not owned; null for none. Only while no output runs.
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
