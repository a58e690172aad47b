#import <Foundation/Foundation.h>

#include "ui/Export.h"

/// Exports the names of the view's notifications from the bundle. Constant strings must be
/// literals; a test compares them with the core's.
#define EXPORT_NAME(constant, text)              \
  extern "C" UI_EXPORT NSString* const constant; \
  NSString* const constant = text

EXPORT_NAME(monitorSourceActionPerformedNotification,
            @"aac_monitorSourceActionPerformedNotification");
EXPORT_NAME(monitorEncodedActionPerformedNotification,
            @"aac_monitorEncodedActionPerformedNotification");
EXPORT_NAME(clearClipActionPerformedNotification, @"aac_clearClipActionPerformedNotification");
EXPORT_NAME(listeningTestMonitorSourceActionPerformedNotification,
            @"aac_listeningTestMonitorSourceActionPerformedNotification");
EXPORT_NAME(listeningTestMonitorAActionPerformedNotification,
            @"aac_monitorAActionPerformedNotification");
EXPORT_NAME(listeningTestMonitorBActionPerformedNotification,
            @"aac_monitorBActionPerformedNotification");
EXPORT_NAME(listeningTestChooseAActionPerformedNotification,
            @"aac_listeningTestChooseAActionPerformedNotification");
EXPORT_NAME(listeningTestChooseBActionPerformedNotification,
            @"aac_listeningTestChooseBActionPerformedNotification");
EXPORT_NAME(auAACSourceSelectionChangedNotification, @"auAACSourceSelectionChangedNotification");
EXPORT_NAME(auAACResetStatsNotification, @"auAACResetStatsNotification");
EXPORT_NAME(auAACListeningTestStateChangedNotification,
            @"auAACListeningTestStateChangedNotification");
