#pragma once

#include "view/fakes/CallLog.h"
#include "view/fakes/LogCapture.h"
#include "view/fakes/NotificationRecorder.h"

namespace fakes {

/// One log for all that happens to the views of a test, with the capture of the system log and of
/// notifications.
struct Record {
  CallLog calls;
  LogCapture log{calls};
  NotificationRecorder notifications{calls};
};

}  // namespace fakes
