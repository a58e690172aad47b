#pragma once

#include <filesystem>
#include <optional>
#include <string>
#include <variant>

#include "host/files/ChannelChoice.h"
#include "host/messages/ArgumentParsing.h"
#include "host/unit/EncoderSetting.h"

namespace host {

/// What `aac-audition` is asked to do.
struct AuditionOptions {
  std::optional<std::filesystem::path> file;
  /// Of a file with more than two.
  ChannelChoice channels;
  bool headless = false;
  /// Go on where the user left off the last time.
  bool restore = false;
  std::optional<double> seconds;
  std::optional<std::filesystem::path> screenshot;
  bool json = false;
  std::optional<std::string> device;
  std::optional<std::filesystem::path> record;
  std::optional<bool> monitorsSource;
  /// A factory preset's number.
  std::optional<std::uint32_t> preset;
  std::optional<EncoderSetting> setting;
};

/// Reads the arguments, `argv[0]` first. Throws `UsageError`.
std::variant<AuditionOptions, HelpText> parsedAuditionArguments(int argc, const char* const* argv);

}  // namespace host
