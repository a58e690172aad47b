#pragma once

namespace host::audition {

/// Keeps the toolkit's messages for developers off standard error, and reports a fatal one in a
/// single line. Setting QT_LOGGING_RULES or QT_DEBUG_PLUGINS shows them all. Call it before the
/// application object is made.
void tameToolkitMessages();

}  // namespace host::audition
