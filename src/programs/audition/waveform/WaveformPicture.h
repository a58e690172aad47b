#pragma once

#include <QColor>
#include <QPalette>
#include <QPixmap>

#include "host/analysis/SharedOverview.h"
#include "programs/audition/waveform/VisibleRange.h"

namespace host::audition {

/// Where the parts of a waveform lie, from the top. Loops have a lane of their own; overs of the
/// source are marked above the waveform, those of the encoded signal below it.
struct WaveformLanes {
  static constexpr int kLoop = 12;
  static constexpr int kMarks = 8;
  static constexpr int kWave = 64;
  static constexpr int kWaveTop = kLoop + kMarks;
  static constexpr int kWaveBottom = kWaveTop + kWave;
  static constexpr int kHeight = kWaveBottom + kMarks + 4;
};

/// The colours of the marks: told apart by those who see no red or green, too.
QColor markColor(Signal signal, const QPalette& palette);

/// Draws what does not move: the waveform and the marks.
QPixmap waveformPicture(const SharedOverview& overview, const VisibleRange& range, int width,
                        double pixelRatio, const QPalette& palette);

}  // namespace host::audition
