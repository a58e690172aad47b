#include <QApplication>
#include <QTimer>
#include <exception>
#include <utility>

#include "host/app/Report.h"
#include "host/app/Run.h"
#include "host/app/Words.h"

namespace host::app {
namespace {

constexpr int refreshMilliseconds = 40;

/// The devices to play to: the one that the user named, or all in order of preference.
std::vector<Device> wantedDevices(const std::optional<std::string>& name) {
  if (name && *name == "none") return {};
  auto devices = outputDevices();
  if (name) return {requiredDevice(devices, *name)};
  return inOrderOfPreference(std::move(devices));
}

}  // namespace

int runWithWindow(const AuditionOptions& options, OutputFiles files, TerminationSignals& signals) {
  auto devices = wantedDevices(options.device);
  std::optional<OpenedFile> file;
  if (options.file) file = openedForPlaying(*options.file, options.channels);
  Audition audition(options, std::move(files.record), std::move(devices));
  auto& window = audition.window();
  if (file) {
    audition.open(std::move(*file));
    if (options.seconds) limitLength(audition, *options.seconds);
  }
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
  refresh.start(refreshMilliseconds);
  window.show();
  if (audition.session() != nullptr) audition.session()->player().play();
  QApplication::exec();

  refresh.stop();
  audition.finish();
  if (error) std::rethrow_exception(error);
  if (options.json && audition.session() != nullptr) say(asJson(readingsAfter(audition)) + "\n");
  return 0;
}

}  // namespace host::app
