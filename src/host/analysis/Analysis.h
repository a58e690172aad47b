#pragma once

#include <chrono>
#include <cstdint>
#include <functional>
#include <memory>
#include <optional>

#include "contract/ConverterInterface.h"
#include "host/analysis/BackgroundWork.h"
#include "host/analysis/OfflineRun.h"
#include "host/analysis/SharedOverview.h"
#include "host/files/AudioSource.h"
#include "host/messages/Message.h"
#include "host/unit/ConverterSetup.h"
#include "host/unit/EncoderSetting.h"
#include "host/unit/Readings.h"

namespace host {

/// Fills a file's overview in the background: first the waveform, then the places where the encoded
/// signal exceeds full scale, and those again whenever the encoder setting has changed. Until they
/// are known, overs are marked as playback reaches them.
///
/// While a listening test runs, everything stands still. To be used from one thread; the work
/// itself runs on others.
class Analysis {
 public:
  using Clock = std::chrono::steady_clock;
  /// Opens the file once more. Called on other threads.
  using Open = std::function<std::unique_ptr<AudioSource>()>;

  enum class Step { Waveform, Encoded, Done, Cancelled, Failed };
  struct State {
    Step step = Step::Waveform;
    /// How much of the step is done, from 0 to 1.
    double share = 0;
    /// Why it failed.
    Message failure;
    /// Once the step is `Done`: inter-sample overs of all channels in the whole encoded file.
    std::int64_t encodedOvers = 0;
  };

  /// How long a setting has to stay unchanged before the encoded signal is analysed.
  static constexpr auto kSettling = std::chrono::milliseconds(400);

  /// `make` makes the units that the encoded signal comes from, on other threads.
  Analysis(Open open, AudioFormat format, MakeUnit make = unitFor);
  ~Analysis();

  /// A new one when the waveform is drawn again after having been cancelled.
  const std::shared_ptr<SharedOverview>& overview() const { return overview_; }
  State state() const;

  /// To be called regularly.
  void update(const EncoderSetting& setting, bool testRuns, Clock::time_point now);
  /// Tells what the playing unit has metered before `frame`, the next to leave it. To be called
  /// regularly, and after every jump.
  void follow(const velk::PeakStatistics& peaks, std::int64_t frame);
  /// Stops the work; what is known stays. A change of the setting starts the analysis of the
  /// encoded signal again.
  void cancel();
  /// Starts again what was cancelled or has failed.
  void restart();

 private:
  void startWaveform();
  void startEncoded();
  void takeUp(const EncoderSetting& setting, Clock::time_point now);
  void takeResult();

  Open open_;
  MakeUnit make_;
  AudioFormat format_;
  std::shared_ptr<SharedOverview> overview_;
  std::optional<EncoderSetting> setting_;
  Clock::time_point settledAt_;
  bool testRuns_ = false;
  Step step_ = Step::Waveform;
  bool waveformIsKnown_ = false;
  Message failure_;
  std::shared_ptr<std::optional<Readings>> result_;
  std::int64_t encodedOvers_ = 0;
  velk::PeakStatistics heard_{};
  std::int64_t heardUpTo_ = 0;
  bool hears_ = false;
  /// Destroyed first: it works on the members above.
  std::unique_ptr<BackgroundWork> work_;
};

}  // namespace host
