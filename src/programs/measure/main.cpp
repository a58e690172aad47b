#include <clocale>
#include <cstdlib>
#include <exception>

#include "host/messages/Failure.h"
#include "host/messages/Terminal.h"
#include "programs/measure/Album.h"
#include "programs/measure/Interruption.h"

int main(int argc, char** argv) {
  using namespace host::measure;
  host::Terminal terminal("aac-measure");
  try {
    const auto parsed = parsedArguments(argc, argv);
    if (const auto* const help = std::get_if<host::HelpText>(&parsed)) {
      terminal.say(help->text);
      return EXIT_SUCCESS;
    }
    catchInterruptions();
    return measureAll(std::get<Options>(parsed), terminal);
  } catch (const host::UsageError& error) {
    terminal.complain(std::string(error.what()) + " (aac-measure --help tells more)");
    return 2;
  } catch (const std::exception& error) {
    terminal.complain(error.what());
    return EXIT_FAILURE;
  }
}
