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
/// Replaces the sink and returns the earlier one; an empty function stands for the default, both
/// ways. A sink is called by one thread at a time and never again once it has been replaced; it may
/// log.
UI_EXPORT LogSink setLogSink(LogSink sink);

/// Runs `work`; an exception that it throws is logged and goes no further. The outermost call of
/// everything that a toolkit or a listener starts.
UI_EXPORT void guarded(const std::function<void()>& work) noexcept;

}  // namespace ui
