#include "host/app/Application.h"

#include <exception>

#include "host/app/Words.h"

namespace host::app {

bool Application::notify(QObject* receiver, QEvent* event) {
  try {
    return QApplication::notify(receiver, event);
  } catch (const std::exception& error) {
    warn(error.what());
    return true;
  }
}

}  // namespace host::app
