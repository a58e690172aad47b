#include "programs/audition/ToolkitMessages.h"

#include <unistd.h>

#include <QString>
#include <QtGlobal>
#include <cstdlib>

#include "programs/audition/ProgramTerminal.h"

namespace host::audition {
namespace {

void handle(QtMsgType type, const QMessageLogContext& /*context*/, const QString& text) {
  if (type == QtCriticalMsg) terminal().warn(text.toStdString());
  if (type != QtFatalMsg) return;
  terminal().complain(text.contains("platform plugin")
                          ? "the display cannot be reached; check DISPLAY, or add --headless FILE"
                          : text.simplified().toStdString());
  // The toolkit itself would abort and leave a core file behind.
  ::_exit(EXIT_FAILURE);
}

}  // namespace

void tameToolkitMessages() {
  const bool wanted = qEnvironmentVariableIsSet("QT_LOGGING_RULES") ||
                      qEnvironmentVariableIsSet("QT_DEBUG_PLUGINS");
  if (!wanted) qInstallMessageHandler(handle);
}

}  // namespace host::audition
