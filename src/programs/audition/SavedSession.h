#pragma once

#include <QSettings>
#include <optional>
#include <string>

#include "host/files/ChannelChoice.h"
#include "host/playback/LoopRange.h"
#include "host/unit/EncoderSetting.h"

namespace host::audition {

/// What `--restore` brings back: the file, the position in it, and the user's choices.
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
/// The session in the settings; nothing if none was saved. Values that make no sense are left out.
std::optional<SavedSession> savedSession(QSettings& settings);

}  // namespace host::audition
