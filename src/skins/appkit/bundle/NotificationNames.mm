#import <Foundation/Foundation.h>

#include "ui/Export.h"

/// The names of the view's notifications as symbols of the bundle. A constant string has to be
/// written out here; that each is the core's own is tested.
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
