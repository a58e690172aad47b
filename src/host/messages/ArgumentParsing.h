#pragma once

#include <optional>
#include <string>

namespace CLI {
class App;
}

namespace host {

/// A text to print before ending with success.
struct HelpText {
  std::string text;
};

/// Has the arguments, `argv[0]` first, read into what the parser's options are bound to, and offers
/// `--version`, which says what `builtWith` says, too. Gives the text instead when only that is
/// asked for. Throws `UsageError`.
std::optional<HelpText> parseArguments(CLI::App& app, int argc, const char* const* argv,
                                       const std::string& builtWith);

}  // namespace host
