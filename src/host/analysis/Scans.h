#pragma once

#include "contract/ConverterInterface.h"
#include "host/analysis/Progress.h"
#include "host/analysis/SharedOverview.h"
#include "host/files/AudioSource.h"
#include "host/unit/EncoderSetting.h"

namespace host {

/// Reads a source from where it is to its end and draws it into the overview, with the places at
/// which it exceeds full scale, between the samples too.
void scanSource(AudioSource& source, SharedOverview& overview, Progress& progress);

/// Runs a source through a converter of its own and marks in the overview where the encoded signal
/// exceeds full scale. Gives what was metered until the end, or until it was stopped. Throws
/// `Failure` when the converter cannot be made.
velk::PeakStatistics scanEncoded(AudioSource& source, const EncoderSetting& setting,
                                 SharedOverview& overview, Progress& progress);

}  // namespace host
