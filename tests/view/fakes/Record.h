#pragma once

#include "view/fakes/CallLog.h"
#include "view/fakes/LogCapture.h"
#include "view/fakes/NotificationRecorder.h"

namespace fakes {

/// One log of all that happens to the views of a test, the system log and notifications included.
struct Record {
  CallLog calls;
  LogCapture log{calls};
  NotificationRecorder notifications{calls};
};

}  // namespace fakes
