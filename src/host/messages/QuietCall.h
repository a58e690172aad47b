#pragma once

#include <functional>

namespace host {

/// Does `work` without what it writes to standard error: for calls into libraries that print there
/// by themselves what the program is going to say in its own words. What other threads write in the
/// meantime arrives. Throws what `work` throws.
///
/// The work runs on a thread of its own with a descriptor table of its own. Descriptors that were
/// open before are valid inside; those that the work opens are gone when it returns, so it must not
/// leave anything behind that needs them. Any thread. Where the system lets nobody have such a
/// table, the words get through.
void callQuietly(const std::function<void()>& work);

}  // namespace host
