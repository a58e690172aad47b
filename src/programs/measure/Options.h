#pragma once

#include <filesystem>
#include <optional>
#include <string>
#include <variant>
#include <vector>

#include "host/files/ChannelChoice.h"
#include "host/messages/ArgumentParsing.h"
#include "programs/measure/EncoderChoice.h"

namespace host::measure {

/// What `aac-measure` is asked to do.
struct Options {
  /// Files and folders, at least one.
  std::vector<std::filesystem::path> inputs;
  /// At least one, and none twice.
  std::vector<EncoderChoice> encoders;
  /// Which channels to take of files with more than two.
  ChannelChoice channels;
  bool findTrim = false;
  /// Whether inter-sample overs count as overs too.
  bool interSample = false;
  unsigned jobs = 1;
  bool json = false;
  bool failOnOvers = false;
  /// Folders for a picture and for the bit stream of every file and setting.
  std::optional<std::filesystem::path> pictures;
  std::optional<std::filesystem::path> bitStreams;
};

/// Reads the arguments, `argv[0]` first. Throws `UsageError`.
std::variant<Options, HelpText> parsedArguments(int argc, const char* const* argv);

}  // namespace host::measure
