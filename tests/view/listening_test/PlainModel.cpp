#include "view/listening_test/PlainModel.h"

#include <cmath>

#include "view/listening_test/RequiredAnswers.h"

namespace listening_test {

namespace {

const std::string kAborted = "0/0- Test aborted";
const std::string kIncomplete =
    "Test Incomplete. You need to perform at least 10 tests for your results to be statistically "
    "significant.";

std::string judged(std::uint32_t trials, std::uint32_t correct) {
  if (correct >= requiredAnswers(trials)) {
    return "You successfully identified the encoded audio with a 95% confidence rating.";
  }
  return "You were not successful in identifying the encoded audio in a statistically significant "
         "manner. You needed " +
         std::to_string(requiredAnswers(trials)) + " correct answers to pass this test";
}

std::string shown(bool value) {
  return value ? "yes" : "no";
}

}  // namespace

bool PlainModel::writesMonitor(bool source) {
  if (refusesMonitor_) {
    refusesMonitor_ = false;
    return false;
  }
  unitPlaysSource_ = source;
  announced_.push_back(Announcement::Monitor);
  return true;
}

bool PlainModel::writesTest(bool active) {
  if (refusesTest_) {
    refusesTest_ = false;
    return false;
  }
  unitTests_ = active;
  announced_.push_back(Announcement::Test);
  return true;
}

void PlainModel::hostSetsMonitor(bool source) {
  writesMonitor(source);
}

void PlainModel::hostSetsTest(bool active) {
  writesTest(active);
}

void PlainModel::monitors(bool encoded) {
  if (writesMonitor(!encoded)) {
    monitorsEncoder_ = encoded;
  }
}

void PlainModel::performsTest(bool performing) {
  if (writesTest(performing)) {
    performsTest_ = performing;
    menuEnabled_ = !performing;
  }
}

void PlainModel::settles() {
  for (const Announcement announcement : announced_) {
    if (announcement == Announcement::Monitor) {
      monitorsEncoder_ = !unitPlaysSource_;
    } else {
      performsTest_ = unitTests_;
      if (tab_ == 0) {
        segmentHidden_ = performsTest_;
      }
    }
    if (tab_ == 0 && !performsTest_) {
      showsMonitoredSignal();
    }
  }
  announced_.clear();
}

void PlainModel::clicksSource() {
  sourceOn_ = !sourceOn_;
  aOn_ = false;
  bOn_ = false;
  monitors(false);
}

void PlainModel::clicksA() {
  aOn_ = !aOn_;
  sourceOn_ = false;
  bOn_ = false;
  monitors(!aIsSource_);
  if (learns_) {
    hidesVerdicts();
  }
}

void PlainModel::clicksB() {
  bOn_ = !bOn_;
  sourceOn_ = false;
  aOn_ = false;
  monitors(aIsSource_);
  if (learns_) {
    hidesVerdicts();
  }
}

void PlainModel::pressesS() {
  if (tab_ == 1 && !sourceOn_) {
    clicksSource();
  }
}

void PlainModel::pressesA() {
  if (tab_ == 1 && !aOn_) {
    clicksA();
  }
}

void PlainModel::pressesB() {
  if (tab_ == 1 && !bOn_) {
    clicksB();
  }
}

void PlainModel::presses1() {
  if (tab_ == 1) {
    answers(true);
  } else if (!performsTest_) {
    monitors(false);
    segment_ = 0;
  }
}

void PlainModel::presses2() {
  if (tab_ == 1) {
    answers(false);
  } else if (!performsTest_) {
    monitors(true);
    segment_ = 1;
  }
}

void PlainModel::selectsSegment(int segment) {
  segment_ = segment;
  monitors(segment == 1);
}

void PlainModel::answers(bool sayA) {
  if (!performsTest_) {
    performsTest(true);
  }
  const bool right = sayA == aIsSource_;
  correct_ += right ? 1 : 0;
  if (learns_) {
    (sayA ? besideB_ : besideA_).hidden = true;
    (sayA ? besideA_ : besideB_) = {false, right ? "Correct" : "Incorrect", !right};
  } else if (cycle_ >= 20 || correct_ >= requiredAnswers(cycle_)) {
    ++cycle_;
    ends(true);
    return;
  } else {
    label_ = "Test Cycle: " + std::to_string(cycle_ + 1) + " of 20";
  }
  ++cycle_;
  aIsSource_ = nextAIsSource;
  sourceOn_ = true;
  aOn_ = false;
  bOn_ = false;
  monitors(false);
}

void PlainModel::clicksEndTest() {
  ends(true);
}

void PlainModel::ends(bool showsSheet) {
  if (showsSheet) {
    const std::uint32_t trials = cycle_ - 1;
    lastTrials_ = trials;
    lastCorrect_ = correct_;
    cycles_ = std::to_string(trials);
    results_ = trials == 0 ? kAborted : scoreOf(trials, correct_);
    summary_ = trials < 9 ? kIncomplete : judged(trials, correct_);
    sheetOpen_ = true;
  }
  cycle_ = 1;
  correct_ = 0;
  aIsSource_ = nextAIsSource;
  label_ = learns_ ? "Learning Mode" : "Test Cycle: 1";
  hidesVerdicts();
  performsTest(false);
}

void PlainModel::clicksLearningMode() {
  learns_ = !learns_;
  if (learns_) {
    label_ = "Learning Mode";
    return;
  }
  hidesVerdicts();
  cycle_ = 1;
  correct_ = 0;
  label_ = "Test Cycle: 1";
}

void PlainModel::hidesVerdicts() {
  besideA_.hidden = true;
  besideB_.hidden = true;
}

void PlainModel::clicksTab(int tab) {
  if (performsTest_) {
    requestedTab_ = tab;
    return;
  }
  if (tab != tab_ && tab == 0) {
    showsMonitoredSignal();
  }
  tab_ = tab;
}

void PlainModel::answersAlert(bool stop) {
  const int requested = *requestedTab_;
  requestedTab_.reset();
  if (stop) {
    ends(false);
    clicksTab(requested);
  }
}

std::optional<std::string> PlainModel::confirmsResults(bool choosesFile) {
  sheetOpen_ = false;
  if (!savesResults_) {
    return std::nullopt;
  }
  ++savePanels_;
  if (!choosesFile) {
    return std::nullopt;
  }
  const std::string tested = "Test Cycles: " + std::to_string(lastTrials_) + "\n";
  if (lastTrials_ < 2) {
    return tested + kAborted + kIncomplete;
  }
  return tested + "Results: " + scoreOf(lastTrials_, lastCorrect_) + "\n\n" +
         (lastTrials_ < 10 ? kIncomplete : judged(lastTrials_, lastCorrect_));
}

std::string PlainModel::scoreOf(std::uint32_t trials, std::uint32_t correct) const {
  const float share = static_cast<float>(correct) / static_cast<float>(trials);
  const auto percent = static_cast<int>(std::nearbyint(static_cast<double>(share) * 100.0));
  return std::to_string(correct) + "/" + std::to_string(trials) + " (" + std::to_string(percent) +
         "% Correct)";
}

Sight PlainModel::sight() const {
  return {
      "unit plays source: " + shown(unitPlaysSource_),
      "unit tests: " + shown(unitTests_),
      "tab: " + std::to_string(tab_),
      "monitors encoder: " + shown(monitorsEncoder_),
      "performs test: " + shown(performsTest_),
      "menu enabled: " + shown(menuEnabled_),
      "alert: " + shown(requestedTab_.has_value()),
      "segment: " + std::to_string(segment_) + (segmentHidden_ ? ", hidden" : ""),
      "label: " + label_,
      "source, A, B: " + shown(sourceOn_) + ", " + shown(aOn_) + ", " + shown(bOn_),
      "answers: no, no",
      "learns: " + shown(learns_),
      "beside A: " + shown(besideA_.hidden) + " " + besideA_.text + " " + shown(besideA_.red),
      "beside B: " + shown(besideB_.hidden) + " " + besideB_.text + " " + shown(besideB_.red),
      "sheet: " + shown(sheetOpen_) + ", " + cycles_ + ", " + results_ + ", " + summary_,
      "saves: " + shown(savesResults_),
      "save panels: " + std::to_string(savePanels_) +
          (savePanels_ == 0 ? "" : ", ListeningTestResults-" + std::to_string(savePanels_)),
  };
}

}  // namespace listening_test
