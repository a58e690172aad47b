#include "programs/audition/RunEnd.h"

#include <cmath>

#include "converter/unit/ConverterUnit.h"

namespace host::audition {

Readings readingsAfter(Audition& audition) {
  auto& session = *audition.session();
  const auto& player = session.player();
  const bool heardAll = player.isFinished() && !player.isCutShort();
  auto readings = heardAll ? finalReadingsOf(session.unit(), session.format())
                           : readingsOf(session.unit(), session.format());
  readings.file = session.path().string();
  readings.seconds = static_cast<double>(session.player().position()) / session.format().sampleRate;
  return readings;
}

void limitLength(Audition& audition, double seconds) {
  auto& session = *audition.session();
  const auto frames = seconds * session.format().sampleRate;
  if (frames < static_cast<double>(session.player().length())) {
    session.player().limitLength(std::llround(frames));
  }
}

}  // namespace host::audition
