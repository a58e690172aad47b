#pragma once

namespace host::audition {

/// Keeps the toolkit's remarks for developers off standard error, and says in one line what makes
/// it give up. Whoever wants to read the remarks sets QT_LOGGING_RULES or QT_DEBUG_PLUGINS. Before
/// the application object is made.
void tameToolkitMessages();

}  // namespace host::audition
