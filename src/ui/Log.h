#pragma once

#include <functional>
#include <string>
#include <string_view>

#include "ui/Export.h"

namespace ui {

/// Writes one line to the system log. The default sink writes to standard error with date and time.
/// Any thread but the audio thread; lines never mix.
UI_EXPORT void log(std::string_view text);

using LogSink = std::function<void(std::string_view text)>;
/// Replaces the sink and returns the previous one; an empty function means the default, in both
/// directions. A sink is called by one thread at a time, never again once replaced, and may log.
UI_EXPORT LogSink setLogSink(LogSink sink);

/// Runs `work`; whatever it throws is logged and goes no further. Everything that a toolkit, a host
/// or a listener calls runs inside it.
UI_EXPORT void runGuarded(const std::function<void()>& work) noexcept;

}  // namespace ui
