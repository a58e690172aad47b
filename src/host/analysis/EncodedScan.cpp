#include "host/analysis/OfflineRun.h"
#include "host/analysis/Scans.h"
#include "host/unit/EncoderSetting.h"

namespace host {

std::optional<Readings> scanEncoded(AudioSource& source, const EncoderSetting& setting,
                                    SharedOverview& overview, Progress& progress,
                                    const MakeUnit& make) {
  OfflineRunOptions options;
  options.chooseEncoder = [&](AudioUnit unit) { applyEncoderSetting(unit, setting); };
  options.locatesOvers = true;
  OfflineRun run(source, options, make);
  const auto mark = [&] {
    for (const auto& overs : run.overs()) {
      // Those of the source have been marked with the waveform.
      if (overs.signal != Signal::Encoded) continue;
      overview.addOvers(overs.signal, overs.channel, overs.frame, overs.count);
    }
  };
  while (progress.goesOn()) {
    if (!run.step()) {
      auto readings = run.finish();
      mark();
      return readings;
    }
    mark();
    progress.set(run.share());
  }
  return std::nullopt;
}

}  // namespace host
