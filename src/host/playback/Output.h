#pragma once

#include <cstdint>
#include <string>

#include "host/messages/Message.h"

namespace host {

/// Pulls blocks from a renderer, from its construction until its destruction.
class Output {
 public:
  Output() = default;
  Output(const Output&) = delete;
  Output& operator=(const Output&) = delete;
  virtual ~Output() = default;

  /// The name that the user knows it by.
  virtual std::string name() const = 0;
  virtual bool isSilent() const = 0;
  /// The rate at which it plays, Hz; not the renderer's if it converts.
  virtual std::uint32_t sampleRate() const = 0;
  /// From the renderer to the ear, in frames at the renderer's rate, as far as the device reports
  /// it.
  virtual std::uint32_t latency() const = 0;
  /// Why it has stopped running; empty while it runs. Main thread; call it regularly, because some
  /// failures show only over time.
  virtual Message failure() = 0;
};

}  // namespace host
