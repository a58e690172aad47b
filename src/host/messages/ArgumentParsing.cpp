#include "host/messages/ArgumentParsing.h"

#include <CLI/CLI.hpp>

#include "host/messages/Failure.h"
#include "host/messages/Version.h"

namespace host {

std::optional<HelpText> parseArguments(CLI::App& app, int argc, const char* const* argv,
                                       const std::string& builtWith) {
  app.set_version_flag("--version", app.get_name() + " " + kVersion + "\n" + builtWith,
                       "Print the version and the codecs' licences and exit");
  try {
    app.parse(argc, argv);
  } catch (const CLI::CallForHelp&) {
    return HelpText{app.help()};
  } catch (const CLI::CallForVersion& call) {
    return HelpText{std::string(call.what()) + "\n"};
  } catch (const CLI::ParseError& error) {
    // The parser's messages may have several lines; the first says what is wrong.
    const std::string message = error.what();
    throw UsageError(message.substr(0, message.find('\n')));
  }
  return std::nullopt;
}

}  // namespace host
