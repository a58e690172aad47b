#pragma once

#include "host/messages/Terminal.h"

namespace host::audition {

/// The one that `aac-audition` speaks through. Any thread.
Terminal& terminal();

}  // namespace host::audition
