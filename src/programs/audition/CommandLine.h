#pragma once

#include <filesystem>
#include <optional>
#include <string>
#include <variant>

#include "host/files/ChannelChoice.h"
#include "host/messages/ArgumentParsing.h"
#include "host/unit/EncoderSetting.h"

namespace host {

/// The options of `aac-audition`.
struct AuditionOptions {
  std::optional<std::filesystem::path> file;
  /// The channels to play of a file with more than two.
  ChannelChoice channels;
  bool headless = false;
  /// Continue where the user left off last time.
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

/// Parses the arguments; `argv[0]` is the program. Throws `UsageError`.
std::variant<AuditionOptions, HelpText> parseAuditionArguments(int argc, const char* const* argv);

}  // namespace host
