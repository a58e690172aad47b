#include "programs/audition/window/StatusText.h"

#include <QCoreApplication>
#include <QLocale>
#include <QStringList>

#include "contract/ConverterInterface.h"
#include "converter/unit/ConverterUnit.h"
#include "host/unit/EncoderSetting.h"

namespace host::audition {
namespace {

class Status {
  Q_DECLARE_TR_FUNCTIONS(StatusText)
};

QString settingText(const converter::EffectiveSetting& setting) {
  const auto name = QString::fromStdString(formatName(static_cast<float>(setting.format)) + " " +
                                           strategyName(static_cast<float>(setting.strategy)));
  if (setting.vbrMode != 0) return Status::tr("%1 mode %2").arg(name).arg(setting.vbrMode);
  return Status::tr("%1 %2 kbit/s").arg(name, QLocale().toString(setting.bitRate / 1000.0, 'g', 4));
}

}  // namespace

bool listeningTestRuns(AudioUnit unit) {
  return readProperty(unit, velk::kConverterProperty_ListeningTestActive).valueOr(0) != 0;
}

std::uint64_t lateFrames(converter::ConverterUnit& unit) {
  return readProperty(&unit, converter::kConverterProperty_MissedFrames).valueOr(0);
}

QString encoderText(converter::ConverterUnit& unit, double sampleRate) {
  if (listeningTestRuns(&unit)) return Status::tr("Listening test");
  QStringList parts;
  if (const auto setting = readProperty(&unit, converter::kConverterProperty_EffectiveSetting)) {
    parts << settingText(*setting);
  }
  const auto rate = readProperty(&unit, converter::kConverterProperty_BitRate);
  if (rate && rate->recentKbps > 0) {
    parts << Status::tr("really %1 kbit/s").arg(QLocale().toString(rate->recentKbps, 'f', 1));
  }
  parts << Status::tr("latency %1 ms").arg(qRound(unit.latency() * 1000 / sampleRate));
  return parts.join(QStringLiteral("  ·  "));
}

}  // namespace host::audition
