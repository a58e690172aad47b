#include "programs/audition/TimeText.h"

namespace host::audition {
namespace {

QString padded(std::int64_t number, int digits) {
  return QString::number(number).rightJustified(digits, QLatin1Char('0'));
}

}  // namespace

QString timeText(std::int64_t frames, std::uint32_t sampleRate, const QLocale& locale) {
  const bool isNegative = frames < 0;
  if (isNegative) frames = -frames;
  const std::int64_t rate = sampleRate > 0 ? sampleRate : 1;
  const auto seconds = frames / rate;
  const auto minutes = seconds / 60;
  QString text = minutes < 60
                     ? QString::number(minutes)
                     : QString::number(minutes / 60) + QLatin1Char(':') + padded(minutes % 60, 2);
  text += QLatin1Char(':') + padded(seconds % 60, 2) + locale.decimalPoint() +
          padded(frames % rate * 1000 / rate, 3);
  return isNegative ? QChar(0x2212) + text : text;
}

}  // namespace host::audition
