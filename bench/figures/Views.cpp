#include <sched.h>

#include <QApplication>
#include <QFile>
#include <QUiLoader>
#include <QWidget>
#include <algorithm>
#include <chrono>
#include <filesystem>
#include <memory>
#include <thread>
#include <vector>

#include "Clock.h"
#include "Figure.h"
#include "Rig.h"
#include "host/unit/ViewBundle.h"
#include "ui/CustomView.h"

namespace figures {
namespace {

/// Makes the process's application object, off screen unless the environment says otherwise. It is
/// never destroyed, because the bundle stays loaded and may still need it.
void needApplication() {
  if (qApp != nullptr) return;
  if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
  static int count = 1;
  static char name[] = "figures";
  static char* arguments[] = {name, nullptr};
  new QApplication(count, arguments);
}

/// Qt's own loader, with plain widgets in place of the skin's classes.
class BareLoader : public QUiLoader {
 public:
  QWidget* createWidget(const QString& className, QWidget* parent, const QString& name) override {
    if (availableWidgets().contains(className)) {
      return QUiLoader::createWidget(className, parent, name);
    }
    auto* widget = new QWidget(parent);
    widget->setObjectName(name);
    return widget;
  }
};

double bareSeconds() {
  const auto path = host::viewBundlePath() / "Resources" / "Velk_NordaAACConverter.ui";
  const double start = threadSeconds();
  QFile file(QString::fromStdString(path.string()));
  if (!file.open(QIODevice::ReadOnly)) return 0;
  BareLoader loader;
  const std::unique_ptr<QWidget> widget(loader.load(&file));
  return threadSeconds() - start;
}

std::vector<Row> measureOpening() {
  needApplication();
  host::ViewBundle bundle(host::viewBundlePath());
  Rig rig;
  const auto openSeconds = [&] {
    const double start = threadSeconds();
    const auto view = bundle.viewForUnit(&rig.unit());
    return threadSeconds() - start;
  };
  // The first of each kind loads what all later ones share.
  openSeconds();
  bareSeconds();
  std::vector<double> ratios;
  std::vector<double> opened;
  for (int round = 0; round < 31; ++round) {
    opened.push_back(openSeconds());
    ratios.push_back(opened.back() / bareSeconds());
  }
  return {atMost("view_opening", median(ratios), 1.5, "of the bare file")};
}

constexpr std::size_t kUnits = 50;
constexpr std::size_t kBlock = 512;
constexpr double kSeconds = 4;

/// Keeps the process on one processor during its lifetime; threads started meanwhile stay there.
class OneProcessor {
 public:
  OneProcessor() {
    sched_getaffinity(0, sizeof all_, &all_);
    cpu_set_t one;
    CPU_ZERO(&one);
    CPU_SET(static_cast<std::size_t>(std::max(sched_getcpu(), 0)), &one);
    sched_setaffinity(0, sizeof one, &one);
  }
  OneProcessor(const OneProcessor&) = delete;
  OneProcessor& operator=(const OneProcessor&) = delete;
  ~OneProcessor() { sched_setaffinity(0, sizeof all_, &all_); }

 private:
  cpu_set_t all_{};
};

/// Fifty units at LC 128, each with a visible view that polls it, in real time on one processor:
/// processor time divided by the time played, and frames that the encoders missed. The signal is
/// always over full scale, so that every poll has something new to show.
std::vector<Row> measureMany() {
  needApplication();
  host::ViewBundle bundle(host::viewBundlePath());
  const OneProcessor onOne;
  std::vector<std::unique_ptr<Rig>> rigs;
  std::vector<std::unique_ptr<QWidget>> windows;
  for (std::size_t i = 0; i < kUnits; ++i) {
    rigs.push_back(std::make_unique<Rig>(
        converter::UnitFormat{.sampleRate = 48000, .channels = 2, .maximumFrames = kBlock}));
    rigs.back()->setSetting(velk::kFormat_AAC, velk::kStrategy_ABR, 10);
    rigs.back()->setOffline(false);
    windows.push_back(std::make_unique<QWidget>());
    auto* view = dynamic_cast<QWidget*>(bundle.viewForUnit(&rigs.back()->unit()).release());
    view->setParent(windows.back().get());
    view->show();
    windows.back()->show();
  }
  QApplication::processEvents();
  Signal input = music(2, std::size_t{48000} * 4, 48000);
  for (auto& samples : input) {
    for (float& sample : samples) sample *= 2;
  }
  Signal output = silence(2, kBlock);
  float* const out[] = {output[0].data(), output[1].data()};
  const auto startTime = std::chrono::steady_clock::now();
  const double start = processorSeconds();
  for (std::size_t at = 0; at + kBlock <= input[0].size(); at += kBlock) {
    const float* const in[] = {input[0].data() + at, input[1].data() + at};
    for (auto& rig : rigs) rig->unit().render(in, out, kBlock);
    QApplication::processEvents();
    std::this_thread::sleep_until(startTime +
                                  std::chrono::microseconds((at + kBlock) * 1000000 / 48000));
  }
  const double load = 100 * (processorSeconds() - start) / kSeconds;
  double missed = 0;
  for (auto& rig : rigs) missed += static_cast<double>(rig->missedFrames());
  return {atMost("views_50_load", load, 100, "% of a core"),
          atMost("views_50_missed_frames", missed, 0)};
}

}  // namespace

Family viewOpening() {
  return {{"view_opening"}, measureOpening};
}

Family manyViews() {
  return {{"views_50_load", "views_50_missed_frames"}, measureMany};
}

}  // namespace figures
