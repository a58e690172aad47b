#include "programs/audition/SavedSession.h"

#include <QString>

namespace host::audition {
namespace {

constexpr const char* kGroup = "session";

QString joined(const ChannelChoice& channels) {
  QStringList words;
  for (const auto channel : channels) words << QString::number(channel);
  return words.join(QLatin1Char(','));
}

template <class Parse>
auto parsedOrNothing(const QString& text, Parse parse)
    -> std::optional<decltype(parse(std::string()))> {
  if (text.isEmpty()) return std::nullopt;
  try {
    return parse(text.toStdString());
  } catch (const UsageError&) {
    return std::nullopt;
  }
}

}  // namespace

void save(const SavedSession& session, QSettings& settings) {
  settings.beginGroup(kGroup);
  settings.remove({});
  settings.setValue("file", QString::fromStdString(session.file));
  settings.setValue("channels", joined(session.channels));
  settings.setValue("position", qlonglong{session.position});
  if (session.loop) {
    settings.setValue("loopBegin", qlonglong{session.loop->start});
    settings.setValue("loopEnd", qlonglong{session.loop->end});
    settings.setValue("loopIsOn", session.loopIsOn);
  }
  settings.setValue("device", QString::fromStdString(session.device));
  if (session.setting) {
    settings.setValue("encoder", QString::fromStdString(settingWords(*session.setting)));
  }
  settings.endGroup();
}

std::optional<SavedSession> savedSession(QSettings& settings) {
  settings.beginGroup(kGroup);
  const auto text = [&](const char* key) { return settings.value(key).toString(); };
  SavedSession session;
  session.file = text("file").toStdString();
  // QSettings reads an unquoted comma as a list.
  const auto channels = settings.value("channels").toStringList().join(QLatin1Char(','));
  session.channels = parsedOrNothing(channels, parsedChannelChoice).value_or(ChannelChoice{});
  session.position = settings.value("position").toLongLong();
  const LoopRange loop = {settings.value("loopBegin").toLongLong(),
                          settings.value("loopEnd").toLongLong()};
  if (loop.start >= 0 && loop.length() > 0) session.loop = loop;
  session.loopIsOn = session.loop && settings.value("loopIsOn").toBool();
  session.device = text("device").toStdString();
  const auto encoder = settings.value("encoder").toStringList().join(QLatin1Char(','));
  session.setting = parsedOrNothing(encoder, parsedEncoderSetting);
  settings.endGroup();
  if (session.file.empty()) return std::nullopt;
  return session;
}

}  // namespace host::audition
