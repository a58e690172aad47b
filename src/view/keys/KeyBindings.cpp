#include "view/keys/KeyBindings.h"

#include "view/main/Notifications.h"

namespace velk {

KeyBindings defaultKeyBindings() {
  return {
      {"1",
       {monitorSourceActionPerformedNotification, listeningTestChooseAActionPerformedNotification}},
      {"2",
       {monitorEncodedActionPerformedNotification,
        listeningTestChooseBActionPerformedNotification}},
      {"\u232B", {clearClipActionPerformedNotification}},
      {"S", {listeningTestMonitorSourceActionPerformedNotification}},
      {"A", {listeningTestMonitorAActionPerformedNotification}},
      {"B", {listeningTestMonitorBActionPerformedNotification}},
  };
}

}  // namespace velk
