#pragma once

#include <QLocale>
#include <QString>
#include <cstdint>

namespace host::audition {

/// A place in a file as the user's locale writes it: "3:07.250", "1:02:45,000". What is less than a
/// millisecond is cut off. A negative one has a minus sign in front.
QString timeText(std::int64_t frames, std::uint32_t sampleRate, const QLocale& locale = QLocale());

}  // namespace host::audition
