#pragma once

#include <cstdint>
#include <string_view>
#include <vector>

#include "host/Failure.h"

namespace host {

/// One or two channels of a file with more, by number from 1 on: what is left and what is right, or
/// the only one.
using ChannelChoice = std::vector<std::uint32_t>;

/// Reads "L,R" or "N". Throws `UsageError`.
ChannelChoice parsedChannelChoice(std::string_view text);

/// A file has more than two channels, and nobody has said which of them to take.
class TooManyChannels : public Failure {
 public:
  TooManyChannels(const std::string& what, std::uint32_t channels)
      : Failure(what), channels_(channels) {}

  std::uint32_t channels() const { return channels_; }

 private:
  std::uint32_t channels_;
};

}  // namespace host
