#include "host/playback/Session.h"

#include <utility>

#include "contract/ConverterInterface.h"
#include "converter/unit/ConverterUnit.h"
#include "host/messages/Failure.h"
#include "host/playback/ConvertedOutput.h"
#include "host/playback/SilentClock.h"
#include "host/unit/ConverterSetup.h"

namespace host {
Session::Session(OpenedFile file, OpenDevice open)
    : open_(std::move(open)),
      path_(std::move(file.path)),
      channels_(std::move(file.channels)),
      format_(file.source->format()),
      original_(file.original),
      truncated_(std::move(file.truncated)),
      unit_(unitFor(format_)),
      player_(std::make_unique<Player>(*unit_, kMaximumFrames, std::move(file.source))) {}

Session::~Session() {
  stop();
}

bool Session::canLoad(const OpenedFile& file) const {
  return file.source->format() == format_;
}

void Session::load(OpenedFile file) {
  const bool hadOutput = output_ != nullptr;
  stop();
  path_ = std::move(file.path);
  channels_ = std::move(file.channels);
  original_ = file.original;
  truncated_ = std::move(file.truncated);
  player_ = std::make_unique<Player>(*unit_, kMaximumFrames, std::move(file.source));
  player_->setTap(tap_);
  // The readings so far belong to the other file.
  writeProperty(unit_.get(), velk::kConverterProperty_ResetPeakStats, 1);
  if (hadOutput) setDevice(std::exchange(device_, std::nullopt));
}

void Session::setDevice(const std::optional<Device>& device) {
  stop();
  try {
    startOutput(device);
  } catch (const Failure&) {
    startOutput(std::nullopt);
    throw;
  }
}

Message Session::setFirstWorkingDevice(const std::vector<Device>& devices) {
  stop();
  Message why;
  for (const auto& device : devices) {
    try {
      startOutput(device);
      return {};
    } catch (const Failure& failure) {
      if (why.empty()) why = failure.message();
    }
  }
  startOutput(std::nullopt);
  return why;
}

void Session::startOutput(const std::optional<Device>& device) {
  player_->setDeviceRuns(true);
  device_.reset();
  if (device) {
    output_ = openAtItsRate(*device, format_, *player_, open_);
  } else {
    output_ = std::make_unique<SilentClock>(format_, *player_);
  }
  device_ = device;
}

void Session::stop() {
  output_.reset();
  player_->setDeviceRuns(false);
}

Message Session::checkOutput() {
  if (!output_) return {};
  auto why = output_->failure();
  if (why.empty()) return {};
  const auto name = output_->name();
  setDevice(std::nullopt);
  return {Message::words("the device '%1' has failed: %2"), {name, why}};
}

void Session::setTap(AudioTap* tap) {
  tap_ = tap;
  player_->setTap(tap);
}

}  // namespace host
