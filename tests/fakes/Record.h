#pragma once

#include "fakes/CallLog.h"
#include "fakes/LogCapture.h"
#include "fakes/NotificationRecorder.h"

namespace fakes {

/// One log for all that happens to the views of a test, with the capture of the system log and of
/// notifications.
struct Record {
  CallLog calls;
  LogCapture log{calls};
  NotificationRecorder notifications{calls};
};

}  // namespace fakes
