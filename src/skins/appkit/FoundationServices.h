#pragma once

namespace ui::appkit {

/// Puts Foundation's notification centre, assertion handler and system log in the place of the
/// defaults. A log sink that somebody has set stays. The first call counts.
void useFoundationServices();

}  // namespace ui::appkit
