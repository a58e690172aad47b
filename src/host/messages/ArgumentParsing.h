#pragma once

#include <optional>
#include <string>

namespace CLI {
class App;
}

namespace host {

/// A text to print before exiting with success.
struct HelpText {
  std::string text;
};

/// Reads the arguments, `argv[0]` first, into the variables that the parser's options are bound to,
/// and adds `--version`, which also prints `builtWith`. Returns the text when help or version is
/// all that was asked for. Throws `UsageError`.
std::optional<HelpText> parseArguments(CLI::App& app, int argc, const char* const* argv,
                                       const std::string& builtWith);

}  // namespace host
