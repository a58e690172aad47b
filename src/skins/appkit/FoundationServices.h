#pragma once

namespace ui::appkit {

/// Replaces the default notification centre, assertion handler and log sink by Foundation's. A log
/// sink that is already set stays. Only the first call has an effect.
void useFoundationServices();

}  // namespace ui::appkit
