#include <QString>

#include "ui/Export.h"
#include "view/main/Notifications.h"

/// Exports the names of the view's notifications from the bundle, as Qt strings.
#define EXPORT_NAME(constant)                  \
  extern "C" UI_EXPORT const QString constant; \
  const QString constant =                     \
      QString::fromUtf8(velk::constant.data(), qsizetype(velk::constant.size()))

EXPORT_NAME(monitorSourceActionPerformedNotification);
EXPORT_NAME(monitorEncodedActionPerformedNotification);
EXPORT_NAME(clearClipActionPerformedNotification);
EXPORT_NAME(listeningTestMonitorSourceActionPerformedNotification);
EXPORT_NAME(listeningTestMonitorAActionPerformedNotification);
EXPORT_NAME(listeningTestMonitorBActionPerformedNotification);
EXPORT_NAME(listeningTestChooseAActionPerformedNotification);
EXPORT_NAME(listeningTestChooseBActionPerformedNotification);
EXPORT_NAME(auAACSourceSelectionChangedNotification);
EXPORT_NAME(auAACResetStatsNotification);
EXPORT_NAME(auAACListeningTestStateChangedNotification);
