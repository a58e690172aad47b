#include "host/messages/Version.h"

namespace host {

const char* const kVersion = VELK_VERSION;

}  // namespace host
