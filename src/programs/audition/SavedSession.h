#pragma once

#include <QSettings>
#include <optional>
#include <string>

#include "host/files/ChannelChoice.h"
#include "host/playback/LoopRange.h"
#include "host/unit/EncoderSetting.h"

namespace host::audition {

/// What a user finds again who asks for it: the file, where he was in it, and what he had chosen.
struct SavedSession {
  std::string file;
  ChannelChoice channels;
  std::int64_t position = 0;
  std::optional<LoopRange> loop;
  bool loopIsOn = false;
  /// Empty for none.
  std::string device;
  std::optional<EncoderSetting> setting;

  friend bool operator==(const SavedSession&, const SavedSession&) = default;
};

void save(const SavedSession& session, QSettings& settings);
/// Nothing when none was saved. What makes no sense in the settings is left out.
std::optional<SavedSession> savedSession(QSettings& settings);

}  // namespace host::audition
