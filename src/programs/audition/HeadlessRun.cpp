#include <QApplication>
#include <QTimer>
#include <array>
#include <exception>
#include <functional>
#include <vector>

#include "converter/unit/ConverterUnit.h"
#include "host/messages/Failure.h"
#include "host/unit/CarriedSetting.h"
#include "programs/audition/ProgramTerminal.h"
#include "programs/audition/Run.h"
#include "programs/audition/RunEnd.h"

namespace host::audition {
namespace {

constexpr std::uint32_t kBlockFrames = 1024;
/// Blocks rendered per turn of the event loop.
constexpr int kBlocksPerTurn = 20;
/// Long enough for the last readings to show: the view polls its meters every 75 ms.
constexpr int kSettlingMilliseconds = 250;
constexpr int kLineRefreshMilliseconds = 50;
constexpr int kRestingMilliseconds = 10;

/// Renders block after block, a few in each turn of the event loop.
class Pump {
 public:
  Pump(Session& session, Recorder* recorder) : session_(session), recorder_(recorder) {
    session.player().setOffline(true);
  }

  /// Renders some blocks. False once everything has been rendered.
  bool turn() {
    auto& player = session_.player();
    const std::array<float*, 2> planes = {samples_.data(), samples_.data() + kBlockFrames};
    for (int block = 0; block < kBlocksPerTurn && !player.isFinished(); ++block) {
      if (recorder_ != nullptr) recorder_->waitForRoom(kBlockFrames);
      player.renderBlock(planes.data(), kBlockFrames);
    }
    return !player.isFinished();
  }

 private:
  Session& session_;
  Recorder* recorder_;
  std::vector<float> samples_ = std::vector<float>(std::size_t{kBlockFrames} * 2);
};

/// Runs the event loop and calls `work` every `milliseconds`, until it returns false or the user
/// interrupts the program.
void runEventLoopWhile(const std::function<bool()>& work, const bool& interrupted,
                       int milliseconds = 0) {
  std::exception_ptr error;
  QTimer timer;
  QObject::connect(&timer, &QTimer::timeout, [&] {
    try {
      if (!interrupted && work()) return;
    } catch (...) {
      error = std::current_exception();
    }
    timer.stop();
    QApplication::exit();
  });
  timer.start(milliseconds);
  QApplication::exec();
  if (error) std::rethrow_exception(error);
}

void settle(const bool& interrupted) {
  if (interrupted) return;
  QTimer::singleShot(kSettlingMilliseconds, [] { QApplication::exit(); });
  QApplication::exec();
}

void requireDevice(const std::optional<std::string>& name) {
  if (name && *name != "none") static_cast<void>(requiredDevice(outputDevices(), *name));
}

}  // namespace

int runHeadless(const AuditionOptions& options, OutputFiles files, TerminationSignals& signals) {
  // No device plays, but a wrong name is an error all the same.
  requireDevice(options.device);
  auto file = openForPlaying(*options.file, options.channels);
  Audition audition(options, std::move(files.record), std::nullopt);
  // The screenshot shows the whole waveform.
  audition.setAnalysing(files.screenshot != nullptr);
  audition.open(std::move(file));
  if (options.seconds) limitLength(audition, *options.seconds);
  bool interrupted = false;
  const auto listening = signals.listen([&] {
    interrupted = true;
    QApplication::exit();
  });
  audition.window().show();
  QTimer refresh;
  QObject::connect(&refresh, &QTimer::timeout, [&] { audition.refresh(); });
  refresh.start(kLineRefreshMilliseconds);

  Pump pump(*audition.session(), audition.recorder());
  audition.session()->player().play();
  runEventLoopWhile([&] { return pump.turn(); }, interrupted);
  // The encoder runs ahead of what was heard: let it finish, so that equal runs report equal bit
  // rates.
  audition.session()->unit().waitForCodec();
  if (files.screenshot) {
    const auto goesOn = [&] {
      audition.refresh();
      return audition.isAnalysing();
    };
    runEventLoopWhile(goesOn, interrupted, kRestingMilliseconds);
    settle(interrupted);
  }
  if (interrupted) throw Failure(Message::words("interrupted; nothing was written"));

  refresh.stop();
  audition.refresh();
  audition.finish();
  const auto readings = readingsAfter(audition);
  if (const auto carried = carriedOtherwise(&audition.session()->unit())) terminal().warn(*carried);
  if (files.screenshot) writeScreenshot(audition.window(), *files.screenshot);
  terminal().say(options.json ? asJson(readings) + "\n" : asText(readings));
  return 0;
}

}  // namespace host::audition
