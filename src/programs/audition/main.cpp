#include <QIcon>
#include <clocale>
#include <cstdlib>
#include <exception>

#include "host/messages/Failure.h"
#include "host/playback/SoundSystems.h"
#include "programs/audition/Application.h"
#include "programs/audition/CommandLine.h"
#include "programs/audition/ProgramTerminal.h"
#include "programs/audition/Run.h"
#include "programs/audition/ToolkitMessages.h"
#include "programs/audition/window/Languages.h"

namespace {

bool hasDisplay() {
  for (const char* const name : {"QT_QPA_PLATFORM", "DISPLAY", "WAYLAND_DISPLAY"}) {
    if (!qEnvironmentVariableIsEmpty(name)) return true;
  }
  return false;
}

void choosePlatform(bool headless) {
  if (headless && !qEnvironmentVariableIsSet("QT_QPA_PLATFORM")) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
  }
  if (!hasDisplay()) {
    throw host::Failure(
        host::Message::words("there is no display to open a window on; add --headless FILE"));
  }
}

int run(const host::AuditionOptions& options, const char* program) {
  choosePlatform(options.headless);
  host::askForShortBuffers();
  // First, so that a signal still cleans up the files claimed below.
  host::audition::TerminationSignals signals;
  auto files = host::audition::claimOutputFiles(options);
  // The toolkit gets only the program's name, because its own options are not part of ours.
  int count = 1;
  char* arguments[] = {const_cast<char*>(program), nullptr};
  host::audition::tameToolkitMessages();
  host::audition::Application application(count, arguments);
  host::audition::installTranslations(QLocale(), application);
  QApplication::setApplicationName("aac-audition");
  QApplication::setDesktopFileName("aac-audition");
  QApplication::setWindowIcon(QIcon::fromTheme("aac-audition", QIcon(":/icons/aac-audition.svg")));
  // Numbers for machines keep the decimal point whatever the user's language.
  std::setlocale(LC_NUMERIC, "C");
  return options.headless ? host::audition::runHeadless(options, std::move(files), signals)
                          : host::audition::runWithWindow(options, std::move(files), signals);
}

}  // namespace

int main(int argc, char** argv) {
  try {
    const auto parsed = host::parseAuditionArguments(argc, argv);
    if (const auto* const help = std::get_if<host::HelpText>(&parsed)) {
      host::audition::terminal().say(help->text);
      return EXIT_SUCCESS;
    }
    return run(std::get<host::AuditionOptions>(parsed), argv[0]);
  } catch (const host::UsageError& error) {
    host::audition::terminal().complain(std::string(error.what()) +
                                        " (aac-audition --help tells more)");
    return 2;
  } catch (const std::exception& error) {
    host::audition::terminal().complain(error.what());
    return EXIT_FAILURE;
  }
}
