#include <charconv>
#include <cstdlib>
#include <exception>
#include <string>
#include <string_view>
#include <vector>

#include "host/messages/Failure.h"
#include "host/messages/Terminal.h"
#include "programs/demo_mix/DemoMix.h"
#include "programs/demo_mix/Pcm16File.h"

namespace {

constexpr const char* kHelp =
    R"(usage: demo-mix OUT.wav [SECONDS]

Writes a loud demo mix, 44.1 kHz, 16 bits, stereo: 24 seconds or as many as are wanted, from 1 to
600. Its largest sample is full scale exactly. Equal commands write equal files.
)";

constexpr double kUsualSeconds = 24;

double parsedSeconds(std::string_view text) {
  double seconds = 0;
  const auto* const end = text.data() + text.size();
  const auto result = std::from_chars(text.data(), end, seconds);
  if (result.ec != std::errc() || result.ptr != end || !(seconds >= 1 && seconds <= 600)) {
    throw host::UsageError("bad SECONDS '" + std::string(text) + "': give a number from 1 to 600");
  }
  return seconds;
}

int run(const std::vector<std::string>& arguments, host::Terminal& terminal) {
  for (const auto& argument : arguments) {
    if (argument == "--help" || argument == "-h") {
      terminal.say(kHelp);
      return EXIT_SUCCESS;
    }
  }
  if (arguments.empty() || arguments.size() > 2 || arguments[0].empty() || arguments[0][0] == '-') {
    throw host::UsageError("usage: demo-mix OUT.wav [SECONDS]");
  }
  const double seconds = arguments.size() == 2 ? parsedSeconds(arguments[1]) : kUsualSeconds;
  host::demo_mix::writePcm16(host::demo_mix::demoMix(seconds), arguments[0]);
  return EXIT_SUCCESS;
}

}  // namespace

int main(int argc, char** argv) {
  host::Terminal terminal("demo-mix");
  try {
    return run({argv + 1, argv + argc}, terminal);
  } catch (const host::UsageError& error) {
    terminal.complain(error.what());
    return 2;
  } catch (const std::exception& error) {
    terminal.complain(error.what());
    return EXIT_FAILURE;
  }
}
