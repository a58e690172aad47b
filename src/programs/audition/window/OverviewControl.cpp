#include "programs/audition/window/OverviewControl.h"

#include "converter/unit/ConverterUnit.h"
#include "host/unit/Readings.h"
#include "programs/audition/window/StatusText.h"

namespace host::audition {

using Step = Analysis::Step;

OverviewControl::OverviewControl(TransportBar& transport) : transport_(transport) {
  connect(&transport.analysis(), &AnalysisIndicator::cancelled, this, [this] {
    if (analysis_) analysis_->cancel();
  });
  connect(&transport.analysis(), &AnalysisIndicator::restarted, this, [this] {
    if (analysis_) analysis_->restart();
  });
}

OverviewControl::~OverviewControl() = default;

void OverviewControl::setFile(Session& session, bool analyses) {
  analysis_.reset();
  if (analyses) {
    analysis_ = std::make_unique<Analysis>(
        [path = session.path(), channels = session.channels()] {
          return openForPlaying(path, channels).source;
        },
        session.format());
  }
  transport_.waveform().setFile(analysis_ ? analysis_->overview() : nullptr, session.format());
  if (!analysis_) transport_.analysis().showNothing();
}

void OverviewControl::refresh(Session& session, std::int64_t position,
                              Analysis::Clock::time_point now) {
  auto& waveform = transport_.waveform();
  if (analysis_) {
    analysis_->update(encoderSettingOf(&session.unit()), listeningTestRuns(&session.unit()), now);
    follow(session);
    transport_.analysis().showState(analysis_->state());
  }
  waveform.setFollowing(session.player().isPlaying());
  waveform.refresh(analysis_ ? analysis_->overview() : nullptr, session.player().length(),
                   position);
}

void OverviewControl::leavePosition(Session& session) {
  if (analysis_) follow(session);
}

void OverviewControl::follow(Session& session) {
  analysis_->follow(peakStatisticsOf(session.unit()), session.player().position());
}

bool OverviewControl::isBusy() const {
  if (!analysis_) return false;
  const auto step = analysis_->state().step;
  return step == Step::Waveform || step == Step::Encoded;
}

}  // namespace host::audition
