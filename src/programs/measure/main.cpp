#include <clocale>
#include <cstdlib>
#include <exception>

#include "host/messages/Failure.h"
#include "programs/measure/Album.h"
#include "programs/measure/Console.h"
#include "programs/measure/Interruption.h"

int main(int argc, char** argv) {
  using namespace host::measure;
  try {
    const auto parsed = parsedArguments(argc, argv);
    if (const auto* const help = std::get_if<host::HelpText>(&parsed)) {
      Console().say(help->text);
      return EXIT_SUCCESS;
    }
    catchInterruptions();
    return measureAll(std::get<Options>(parsed));
  } catch (const host::UsageError& error) {
    Console().complain(std::string(error.what()) + " (aac-measure --help tells more)");
    return 2;
  } catch (const std::exception& error) {
    Console().complain(error.what());
    return EXIT_FAILURE;
  }
}
