#include <filesystem>

#include "converter/unit/ConverterUnit.h"
#include "host/unit/EncoderSetting.h"
#include "programs/audition/Audition.h"

namespace host::audition {

std::optional<SavedSession> Audition::sessionToSave() {
  if (!session_) return std::nullopt;
  SavedSession saved;
  saved.file = std::filesystem::absolute(session_->path()).string();
  saved.channels = session_->channels();
  saved.position = heardPosition();
  saved.loop = loop_.loop();
  saved.loopIsOn = loop_.isOn();
  if (session_->device()) saved.device = session_->device()->name;
  saved.setting = encoderSettingOf(&session_->unit());
  return saved;
}

void Audition::restore(const SavedSession& saved) {
  chosenDevice_ = saved.device;
  open(openForPlaying(saved.file, saved.channels));
  const bool settingIsNamed = options_.setting || options_.preset;
  if (saved.setting && !settingIsNamed) applyEncoderSetting(&session_->unit(), *saved.setting);
  if (saved.loop) loop_.choose(saved.loop);
  if (saved.loop && !saved.loopIsOn) loop_.toggle();
  moveTo(saved.position);
}

}  // namespace host::audition
