#include <gtest/gtest.h>
#include <unistd.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <functional>
#include <iostream>
#include <iterator>
#include <map>
#include <optional>
#include <random>
#include <string>
#include <vector>

#include "view/listening_test/PlainModel.h"
#include "view/listening_test/TestPage.h"

namespace listening_test {
namespace {

using fakes::UnitCall;
namespace fs = std::filesystem;

std::string shown(bool value) {
  return value ? "yes" : "no";
}

/// The seed in VELK_WALK_SEED, to repeat a walk, or a random one.
std::mt19937::result_type chosenSeed() {
  const char* given = std::getenv("VELK_WALK_SEED");
  return given != nullptr ? static_cast<std::mt19937::result_type>(std::strtoul(given, nullptr, 10))
                          : std::random_device()();
}

/// Does the same things to a real page and to the model.
class Walk {
 public:
  explicit Walk(std::mt19937::result_type seed)
      : random_(seed),
        file_(fs::path(testing::TempDir()) / ("walk-" + std::to_string(::getpid()) + ".txt")) {
    listEvents();
  }
  ~Walk() { fs::remove(file_); }
  Walk(const Walk&) = delete;
  Walk& operator=(const Walk&) = delete;

  /// Plays one event, mostly with what it made the unit announce. Returns the event's name.
  std::string step() {
    page_.record.calls.clear();
    model_.nextAIsSource = oneIn(2);
    nextDrawMakesASource(model_.nextAIsSource);
    const Event& event = pick();
    event.happens();
    if (!oneIn(4)) {
      model_.settles();
      page_.advance(60);
    }
    return event.name;
  }

  Sight expected() const { return model_.sight(); }
  Sight seen();
  const std::string& mistakeInFile() const { return mistakeInFile_; }
  int filesWritten() const { return filesWritten_; }

 private:
  struct Event {
    std::string name;
    std::function<void()> happens;
  };
  using Told = void (PlainModel::*)();

  bool oneIn(unsigned many) { return random_() % many == 0; }
  const Event& pick() {
    if (oneIn(10)) {
      return outside_[random_() % outside_.size()];
    }
    const std::vector<Event>& inside = model_.isAlertOpen()   ? alert_
                                       : model_.isSheetOpen() ? sheet_
                                       : model_.tab() == 1    ? testPage_
                                                              : auditionPage_;
    return inside[random_() % inside.size()];
  }

  void listEvents();
  Event click(const char* button, Told told) {
    return {std::string("click ") + button, [this, button, told] {
              page_.click(button);
              (model_.*told)();
            }};
  }
  Event press(const char* key, std::uint16_t code, Told told) {
    return {std::string("press ") + key, [this, code, told] {
              page_.view->native->pressKey(code);
              (model_.*told)();
            }};
  }
  Event answer(bool rightly) {
    return {rightly ? "answer rightly" : "answer wrongly", [this, rightly] {
              const bool sayA = model_.isASource() == rightly;
              page_.click(sayA ? "aIsSourceButton" : "bIsSourceButton");
              sayA ? model_.clicksAIsSource() : model_.clicksBIsSource();
            }};
  }
  Event clickTab(int tab) {
    return {"click tab " + std::to_string(tab), [this, tab] {
              page_.tabs().userClicks(tab);
              model_.clicksTab(tab);
            }};
  }
  Event selectSegment(int segment) {
    return {"select segment " + std::to_string(segment), [this, segment] {
              // The real control refuses by itself while it is hidden.
              segmentControl().userSelects(segment);
              if (!model_.isSegmentHidden()) {
                model_.selectsSegment(segment);
              }
            }};
  }
  Event answerAlert(bool stop) {
    return {
        stop ? "stop" : "resume", [this, stop] {
          page_.sheets().answerAlert(stop ? ui::kAlertAlternateReturn : ui::kAlertDefaultReturn);
          model_.answersAlert(stop);
        }};
  }
  Event hostSets(AudioUnitPropertyID property, bool value, void (PlainModel::*told)(bool)) {
    return {"host sets " + std::to_string(property) + " to " + shown(value),
            [this, property, value, told] {
              page_.unit.hostSetsProperty(property, value ? 1 : 0);
              (model_.*told)(value);
            }};
  }
  Event refuse(AudioUnitPropertyID property, Told told) {
    return {"unit refuses " + std::to_string(property), [this, property, told] {
              page_.unit.failOnce(UnitCall::SetProperty, property, -1);
              (model_.*told)();
            }};
  }
  void confirmResults();

  fakes::FakeSegmentedControl& segmentControl() {
    return page_.view->control<fakes::FakeSegmentedControl>("auditionController.monitorControl");
  }
  std::string verdict(const char* outlet) {
    auto& field = page_.control<fakes::FakeTextField>(outlet);
    return shown(field.isHidden()) + " " + field.text() + " " +
           shown(field.color() == ui::Color::deviceRGB(0.5, 0, 0, 1));
  }

  std::mt19937 random_;
  fs::path file_;
  TestPage page_;
  PlainModel model_;
  std::string mistakeInFile_;
  int filesWritten_ = 0;
  std::vector<Event> testPage_;
  std::vector<Event> auditionPage_;
  std::vector<Event> alert_;
  std::vector<Event> sheet_;
  std::vector<Event> outside_;
};

void Walk::listEvents() {
  const Event keys[] = {
      press("S", 1, &PlainModel::pressesS),      press("A", 0, &PlainModel::pressesA),
      press("B", 11, &PlainModel::pressesB),     press("1", 18, &PlainModel::presses1),
      press("pad 1", 83, &PlainModel::presses1), press("2", 19, &PlainModel::presses2),
      press("pad 2", 84, &PlainModel::presses2)};
  testPage_ = {click("sourceButton", &PlainModel::clicksSource),
               click("aButton", &PlainModel::clicksA),
               click("bButton", &PlainModel::clicksB),
               click("aIsSourceButton", &PlainModel::clicksAIsSource),
               click("bIsSourceButton", &PlainModel::clicksBIsSource),
               click("endTestButton", &PlainModel::clicksEndTest),
               click("learnModeButton", &PlainModel::clicksLearningMode),
               clickTab(0),
               clickTab(1)};
  testPage_.insert(testPage_.end(), std::begin(keys), std::end(keys));
  // Often enough for tests to end by themselves.
  testPage_.insert(testPage_.end(), 14, answer(true));
  testPage_.insert(testPage_.end(), 12, answer(false));
  auditionPage_ = {selectSegment(0), selectSegment(1), clickTab(0), clickTab(1), clickTab(1)};
  auditionPage_.insert(auditionPage_.end(), std::begin(keys), std::end(keys));
  alert_ = {answerAlert(false), answerAlert(false), answerAlert(true)};
  sheet_ = {{"confirm results", [this] { confirmResults(); }},
            click("saveResultsButton", &PlainModel::clicksSaveBox)};
  outside_ = {
      hostSets(velk::kConverterProperty_MonitorSource, false, &PlainModel::hostSetsMonitor),
      hostSets(velk::kConverterProperty_MonitorSource, true, &PlainModel::hostSetsMonitor),
      hostSets(velk::kConverterProperty_ListeningTestActive, false, &PlainModel::hostSetsTest),
      hostSets(velk::kConverterProperty_ListeningTestActive, true, &PlainModel::hostSetsTest),
      refuse(velk::kConverterProperty_MonitorSource, &PlainModel::unitRefusesNextMonitorWrite),
      refuse(velk::kConverterProperty_ListeningTestActive, &PlainModel::unitRefusesNextTestWrite)};
}

void Walk::confirmResults() {
  const bool choosesFile = oneIn(4);
  fs::remove(file_);
  page_.sheets().saveAnswer.reset();
  if (choosesFile) {
    page_.sheets().saveAnswer = file_;
  }
  page_.confirmResults();
  const std::optional<std::string> expected = model_.confirmsResults(choosesFile);
  if (fs::exists(file_) != expected.has_value()) {
    mistakeInFile_ = "written: " + shown(fs::exists(file_));
  } else if (expected) {
    ++filesWritten_;
    std::ifstream stream(file_, std::ios::binary);
    const std::string content{std::istreambuf_iterator<char>(stream), {}};
    // The head with the date is tested elsewhere.
    if (!content.ends_with("\n" + *expected)) {
      mistakeInFile_ = content;
    }
  }
}

Sight Walk::seen() {
  const auto& panels = page_.sheets().savePanels();
  const auto on = [this](const char* button) { return shown(page_.button(button).state() == 1); };
  return {
      "unit plays source: " + shown(page_.unit.monitorSource != 0),
      "unit tests: " + shown(page_.unit.listeningTestActive != 0),
      "tab: " + std::to_string(page_.tabs().indexOfSelectedItem()),
      "monitors encoder: " + shown(page_.view->view().isMonitoringEncoder()),
      "performs test: " + shown(page_.view->view().isPerformingListeningTest()),
      "menu enabled: " + shown(page_.view->control<ui::View>("view.encoderPopup").isEnabled()),
      "alert: " + shown(page_.sheets().isAlertOpen()),
      "segment: " + std::to_string(segmentControl().selectedSegment()) +
          (segmentControl().isHidden() ? ", hidden" : ""),
      "label: " + page_.text("cycleLabel"),
      "source, A, B: " + on("sourceButton") + ", " + on("aButton") + ", " + on("bButton"),
      "answers: " + on("aIsSourceButton") + ", " + on("bIsSourceButton"),
      "learns: " + on("learnModeButton"),
      "beside A: " + verdict("aResultsText"),
      "beside B: " + verdict("bResultsText"),
      "sheet: " + shown(page_.isSheetOpen()) + ", " + page_.text("cyclesField") + ", " +
          page_.text("resultsField") + ", " + page_.text("summaryField"),
      "saves: " + on("saveResultsButton"),
      "save panels: " + std::to_string(panels.size()) +
          (panels.empty() ? "" : ", " + panels.back().proposedName),
  };
}

TEST(ListeningTest, AgreesWithAPlainModelOverARandomWalk) {
  constexpr int kEvents = 100000;
  const auto seed = chosenSeed();
  std::cout << "VELK_WALK_SEED=" << seed << '\n';
  Walk walk(seed);
  std::map<std::string, int> events;
  std::map<std::string, int> sights;
  std::vector<std::string> latest;
  int passes = 0;
  for (int i = 0; i < kEvents; ++i) {
    const std::string event = walk.step();
    latest.push_back(event);
    ++events[event];
    const Sight seen = walk.seen();
    if (seen != walk.expected() || !walk.mistakeInFile().empty()) {
      latest.erase(latest.begin(), latest.end() - std::min<std::ptrdiff_t>(20, std::ssize(latest)));
      EXPECT_EQ(seen, walk.expected());
      FAIL() << "seed " << seed << ", event " << i << ", after " << testing::PrintToString(latest)
             << walk.mistakeInFile();
    }
    for (const std::string& line : seen) {
      ++sights[line];
      passes += line.find("95% confidence") != std::string::npos ? 1 : 0;
    }
  }
  // The walk must have been where things happen.
  for (const auto& [event, count] : events) {
    EXPECT_GT(count, 10) << event;
  }
  EXPECT_EQ(events.size(), 30U);
  EXPECT_GT(walk.filesWritten(), 20);
  EXPECT_GT(passes, 0);
  for (const char* sight :
       {"label: Learning Mode", "label: Test Cycle: 20 of 20", "segment: 1, hidden", "alert: yes",
        "menu enabled: no", "unit tests: yes"}) {
    EXPECT_GT(sights[sight], 0) << sight;
  }
}

}  // namespace
}  // namespace listening_test
