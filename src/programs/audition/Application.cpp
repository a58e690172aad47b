#include "programs/audition/Application.h"

#include <exception>

#include "programs/audition/ProgramTerminal.h"

namespace host::audition {

bool Application::notify(QObject* receiver, QEvent* event) {
  try {
    return QApplication::notify(receiver, event);
  } catch (const std::exception& error) {
    terminal().warn(error.what());
    return true;
  }
}

}  // namespace host::audition
