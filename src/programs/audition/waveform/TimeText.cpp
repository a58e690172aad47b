#include "programs/audition/waveform/TimeText.h"

#include "host/messages/ClockText.h"

namespace host::audition {

QString timeText(std::int64_t frames, std::uint32_t sampleRate, const QLocale& locale) {
  const bool isNegative = frames < 0;
  if (isNegative) frames = -frames;
  const std::int64_t rate = sampleRate > 0 ? sampleRate : 1;
  const auto milliseconds = frames / rate * 1000 + frames % rate * 1000 / rate;
  const auto text = QString::fromStdString(
      clockText(milliseconds, 3, QString(locale.decimalPoint()).toStdString()));
  return isNegative ? QChar(0x2212) + text : text;
}

}  // namespace host::audition
