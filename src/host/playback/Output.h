#pragma once

#include <cstdint>
#include <string>

#include "host/messages/Message.h"

namespace host {

/// Something that keeps asking a renderer for blocks, from its making until it is destroyed.
class Output {
 public:
  Output() = default;
  Output(const Output&) = delete;
  Output& operator=(const Output&) = delete;
  virtual ~Output() = default;

  /// What the user knows it by.
  virtual std::string name() const = 0;
  virtual bool isSilent() const = 0;
  /// At which it plays, Hz: another one than the renderer's where it converts.
  virtual std::uint32_t sampleRate() const = 0;
  /// Frames from the renderer to the ear, at the renderer's rate, as far as the device tells.
  virtual std::uint32_t latency() const = 0;
  /// Why it does not run any more; empty while it does. Main thread; to be asked now and then.
  virtual Message failure() = 0;
};

}  // namespace host
