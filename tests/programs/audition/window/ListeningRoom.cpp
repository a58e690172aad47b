#include "ListeningRoom.h"

#include <QApplication>
#include <QLabel>
#include <QTabWidget>
#include <QTest>
#include <algorithm>
#include <array>
#include <stdexcept>

#include "audio_unit/CoreFoundation.h"
#include "audio_unit/RunLoop.h"
#include "contract/ConverterInterface.h"
#include "converter/unit/ConverterUnit.h"
#include "skins/qt/Mouse.h"

namespace {

using namespace std::chrono_literals;

/// Longer than any event is delayed.
constexpr auto kSettling = 100ms;

/// Lets the test alone deliver the unit's events while the returned object exists.
std::unique_ptr<void, std::function<void(void*)>> takeOverEvents() {
  CFRunLoopGetCurrent()->setWakeUp([] {});
  return {CFRunLoopGetCurrent(), [](void*) { CFRunLoopGetCurrent()->setWakeUp({}); }};
}

std::unique_ptr<host::AtomicFile> fileFor(const std::filesystem::path& path) {
  return path.empty() ? nullptr : std::make_unique<host::AtomicFile>(path);
}

UInt32 property(converter::ConverterUnit& unit, AudioUnitPropertyID id) {
  UInt32 value = 0;
  UInt32 size = sizeof value;
  if (unit.getProperty(id, kAudioUnitScope_Global, 0, &value, size) != noErr) {
    throw std::runtime_error("the unit does not tell");
  }
  return value;
}

}  // namespace

ListeningRoom::ListeningRoom(const std::filesystem::path& file,
                             const std::filesystem::path& recording,
                             const host::AuditionOptions& options)
    : pumping_(takeOverEvents()),
      time_(std::chrono::steady_clock::now()),
      audition_(options, fileFor(recording), std::nullopt) {
  audition_.open(host::openForPlaying(file));
  audition_.session()->player().setOffline(true);
  window().show();
  window().activateWindow();
  audition_.session()->player().play();
  settle();
}

ListeningRoom::~ListeningRoom() = default;

void ListeningRoom::showTestPage() {
  clickTab(1);
  settle();
}

void ListeningRoom::clickTab(int index) {
  qt_test::clickTab(widget<QTabWidget>("tabView"), index);
}

void ListeningRoom::click(const char* name) {
  qt_test::clickOn(widget(name));
}

void ListeningRoom::press(Qt::Key key) {
  QTest::keyClick(window().focusWidget(), key);
}

std::vector<std::vector<float>> ListeningRoom::listen(std::size_t frames, std::size_t block) {
  auto& player = audition_.session()->player();
  std::vector<std::vector<float>> heard(2, std::vector<float>(frames));
  for (std::size_t done = 0; done < frames;) {
    const auto count = std::min(block, frames - done);
    const std::array<float*, 2> planes = {heard[0].data() + done, heard[1].data() + done};
    if (auto* const recorder = audition_.recorder()) {
      recorder->waitForRoom(static_cast<std::uint32_t>(count));
    }
    player.renderBlock(planes.data(), static_cast<std::uint32_t>(count));
    done += count;
  }
  time_ += std::chrono::microseconds(frames * 1'000'000 / player.format().sampleRate);
  settle();
  return heard;
}

void ListeningRoom::settle() {
  for (int turn = 0; turn < 3; ++turn) {
    time_ += kSettling;
    CFRunLoopGetCurrent()->pump(time_);
    QCoreApplication::processEvents();
  }
  audition_.refresh();
  QCoreApplication::processEvents();
}

QWidget& ListeningRoom::widget(const char* name) {
  if (auto* const found = window().findChild<QWidget*>(name)) return *found;
  throw std::out_of_range(std::string("no widget is named ") + name);
}

std::string ListeningRoom::text(const char* label) {
  return widget<QLabel>(label).text().toStdString();
}

std::size_t ListeningRoom::position() {
  return static_cast<std::size_t>(audition_.session()->player().position());
}

bool ListeningRoom::monitorsSource() {
  return property(audition_.session()->unit(), velk::kConverterProperty_MonitorSource) != 0;
}

bool ListeningRoom::testRuns() {
  return property(audition_.session()->unit(), velk::kConverterProperty_ListeningTestActive) != 0;
}
