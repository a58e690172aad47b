#pragma once

#include <cstdint>
#include <string_view>
#include <utility>
#include <vector>

#include "host/messages/Failure.h"

namespace host {

/// Which channels to take of a file with more than two, numbered from 1: the left and the right
/// one, or a single one.
using ChannelChoice = std::vector<std::uint32_t>;

/// Reads "L,R" or "N". Throws `UsageError`.
ChannelChoice parsedChannelChoice(std::string_view text);

/// A file has more than two channels, and it was not said which of them to take.
class TooManyChannels : public Failure {
 public:
  TooManyChannels(Message message, std::uint32_t channels)
      : Failure(std::move(message)), channels_(channels) {}

  std::uint32_t channels() const { return channels_; }

 private:
  std::uint32_t channels_;
};

}  // namespace host
