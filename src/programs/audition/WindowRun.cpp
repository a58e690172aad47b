#include <QApplication>
#include <QSettings>
#include <QTimer>
#include <algorithm>
#include <exception>
#include <utility>

#include "host/messages/Failure.h"
#include "programs/audition/ProgramTerminal.h"
#include "programs/audition/Run.h"
#include "programs/audition/RunEnd.h"
#include "programs/audition/SavedSession.h"

namespace host::audition {
namespace {

constexpr int kWindowRefreshMilliseconds = 40;

/// The devices to try: none for silent playing, the one named, or all.
std::vector<Device> wantedDevices(const std::optional<std::string>& name,
                                  const SavedSession* last) {
  const bool wasSilent = last != nullptr && last->device.empty();
  if (name ? *name == "none" : wasSilent) return {};
  auto devices = outputDevices();
  if (name) return {requiredDevice(devices, *name)};
  return devices;
}

/// Opens what the command line asks for, before the window is shown. Returns a file that did not
/// open and has to be opened again in the window, which can ask or tell the user something about
/// it.
std::optional<std::string> openFirst(Audition& audition, const AuditionOptions& options,
                                     const SavedSession* last) {
  try {
    if (last != nullptr) audition.restore(*last);
    if (!options.file) return std::nullopt;
    audition.open(openForPlaying(*options.file, options.channels));
    return std::nullopt;
  } catch (const TooManyChannels&) {
    return last != nullptr ? last->file : options.file->string();
  } catch (const Failure& failure) {
    if (last == nullptr) throw;
    terminal().warn(failure.what());
    return last->file;
  }
}

}  // namespace

int runWithWindow(const AuditionOptions& options, OutputFiles files, TerminationSignals& signals) {
  QSettings settings(QSettings::IniFormat, QSettings::UserScope, "aac-audition", "aac-audition");
  const auto last = options.restore ? savedSession(settings) : std::nullopt;
  if (options.restore && !last) terminal().warn("there is no session to restore");
  const auto* const restored = last ? &*last : nullptr;
  Audition audition(options, std::move(files.record), wantedDevices(options.device, restored));
  auto& window = audition.window();
  audition.setAnalysing(true);
  audition.setSettings(&settings);
  const auto questionable = openFirst(audition, options, restored);
  if (options.seconds && audition.session() != nullptr) limitLength(audition, *options.seconds);
  std::exception_ptr error;
  QObject::connect(&window, &MainWindow::closing, [&] {
    try {
      if (files.screenshot) writeScreenshot(window, *files.screenshot);
    } catch (...) {
      error = std::current_exception();
    }
    files.screenshot.reset();
  });
  const auto listening = signals.listen([&] { window.close(); });
  QTimer refresh;
  QObject::connect(&refresh, &QTimer::timeout, [&] {
    audition.refresh();
    const bool atEnd = options.seconds && audition.session() != nullptr &&
                       audition.session()->player().isFinished();
    if (atEnd) window.close();
  });
  refresh.start(kWindowRefreshMilliseconds);
  window.show();
  if (questionable) audition.openAndPlay(QString::fromStdString(*questionable));
  // A restored file waits for the user.
  if (options.file && audition.session() != nullptr) audition.session()->player().play();
  QApplication::exec();

  refresh.stop();
  if (const auto session = audition.sessionToSave()) save(*session, settings);
  audition.finish();
  if (error) std::rethrow_exception(error);
  if (options.json && audition.session() != nullptr)
    terminal().say(asJson(readingsAfter(audition)) + "\n");
  return 0;
}

}  // namespace host::audition
