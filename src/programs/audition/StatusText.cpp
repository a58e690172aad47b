#include "programs/audition/StatusText.h"

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

template <class Data>
bool read(AudioUnit unit, AudioUnitPropertyID id, Data& data) {
  UInt32 size = sizeof data;
  return AudioUnitGetProperty(unit, id, kAudioUnitScope_Global, 0, &data, &size) == noErr;
}

QString settingText(const converter::EffectiveSetting& setting) {
  const auto name =
      QString::fromStdString(formatName(setting.format) + " " + strategyName(setting.strategy));
  if (setting.vbrMode != 0) return Status::tr("%1 mode %2").arg(name).arg(setting.vbrMode);
  return Status::tr("%1 %2 kbit/s").arg(name, QLocale().toString(setting.bitRate / 1000.0, 'g', 4));
}

}  // namespace

bool listeningTestRuns(AudioUnit unit) {
  UInt32 runs = 0;
  return read(unit, velk::kConverterProperty_ListeningTestActive, runs) && runs != 0;
}

std::uint64_t lateFrames(converter::ConverterUnit& unit) {
  UInt64 frames = 0;
  read(&unit, converter::kConverterProperty_MissedFrames, frames);
  return frames;
}

QString encoderText(converter::ConverterUnit& unit, double sampleRate) {
  if (listeningTestRuns(&unit)) return Status::tr("Listening test");
  QStringList parts;
  converter::EffectiveSetting setting{};
  if (read(&unit, converter::kConverterProperty_EffectiveSetting, setting)) {
    parts << settingText(setting);
  }
  converter::BitRate rate{};
  if (read(&unit, converter::kConverterProperty_BitRate, rate) && rate.recentKbps > 0) {
    parts << Status::tr("really %1 kbit/s").arg(QLocale().toString(rate.recentKbps, 'f', 1));
  }
  parts << Status::tr("latency %1 ms").arg(qRound(unit.latency() * 1000 / sampleRate));
  return parts.join(QStringLiteral("  ·  "));
}

}  // namespace host::audition
