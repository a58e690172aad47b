#include <gtest/gtest.h>

#include <functional>
#include <ostream>
#include <string>
#include <tuple>
#include <utility>
#include <vector>

#include "view/listening_test/TestPage.h"

namespace listening_test {
namespace {

constexpr std::uint16_t kKeyA = 0;
constexpr std::uint16_t kKeyS = 1;
constexpr std::uint16_t kKeyB = 11;
constexpr std::uint16_t kKey1 = 18;
constexpr std::uint16_t kKey2 = 19;

/// The visible state of a listening test.
struct State {
  std::string label;
  bool runs = false;
  bool learns = false;
  int answers = 0;
  int correct = 0;
  /// Shown beside A and B; empty while hidden.
  std::string besideA = {};
  std::string besideB = {};
  /// The score on the results sheet; empty while it is closed.
  std::string sheet = {};
  /// Whether A and B were drawn anew.
  bool drawn = false;
  /// "source", "encoded" or "as before".
  std::string heard = "as before";

  State hearing(const std::string& signal) && {
    heard = signal;
    return std::move(*this);
  }
  State besidesA(const std::string& verdict) && {
    besideA = verdict;
    return std::move(*this);
  }
  State besidesB(const std::string& verdict) && {
    besideB = verdict;
    return std::move(*this);
  }
  /// In a different cycle than before.
  State drawnAnew() && {
    drawn = true;
    return std::move(*this);
  }
  /// Ended with this score.
  State onSheet(const std::string& score) && {
    sheet = score;
    return std::move(*this).drawnAnew();
  }

  friend bool operator==(const State&, const State&) = default;
  friend std::ostream& operator<<(std::ostream& stream, const State& state) {
    return stream << '"' << state.label << "\", runs " << state.runs << ", learns " << state.learns
                  << ", " << state.correct << " of " << state.answers << ", beside A \""
                  << state.besideA << "\", beside B \"" << state.besideB << "\", sheet \""
                  << state.sheet << "\", drawn " << state.drawn << ", heard " << state.heard;
  }
};

State ready() {
  return {"Test Cycle: 1"};
}

State testing(int answers, int correct) {
  return {"Test Cycle: " + std::to_string(answers + 1) + " of 20", true, false, answers, correct};
}

State learning(bool runs, int answers, int correct) {
  return {"Learning Mode", runs, true, answers, correct};
}

using Event = std::function<void(TestPage&)>;

/// A test in which A is the source, and has been in every cycle, before and after something.
struct Transition {
  std::string name;
  Event before;
  Event event;
  State after;
};

std::string besideOf(TestPage& page, const char* outlet) {
  auto& field = page.control<fakes::FakeTextField>(outlet);
  return field.isHidden() ? "" : field.text();
}

/// The page after the event. If the event draws, B becomes the source.
State stateAfter(TestPage& page, const Event& event) {
  nextDrawMakesASource(false);
  page.record.calls.clear();
  event(page);
  State state;
  state.label = page.text("cycleLabel");
  state.runs = page.unit.listeningTestActive != 0;
  EXPECT_EQ(page.view->view().isPerformingListeningTest(), state.runs);
  EXPECT_EQ(page.view->control<ui::View>("view.encoderPopup").isEnabled(), !state.runs);
  state.learns = page.button("learnModeButton").state() == 1;
  state.besideA = besideOf(page, "aResultsText");
  state.besideB = besideOf(page, "bResultsText");
  if (page.record.calls.count("unit.setProperty 5301") > 0) {
    state.heard = page.unit.monitorSource != 0 ? "source" : "encoded";
  }
  EXPECT_EQ(page.button("aIsSourceButton").state(), 0);
  EXPECT_EQ(page.button("bIsSourceButton").state(), 0);
  if (page.isSheetOpen()) {
    state.sheet = page.text("resultsField");
    page.confirmResults();
  }
  // The rest does not show until somebody listens to A and ends the test.
  page.click("aButton");
  state.drawn = page.unit.monitorSource == 0;
  page.click("endTestButton");
  state.answers = std::stoi(page.text("cyclesField"));
  state.correct = std::stoi(page.text("resultsField"));
  return state;
}

Event click(const char* button) {
  return [button](TestPage& page) { page.click(button); };
}

Event press(std::uint16_t key) {
  return [key](TestPage& page) { page.view->native->pressKey(key); };
}

/// So many right answers, then so many wrong ones.
Event answers(int right, int wrong) {
  return [=](TestPage& page) {
    for (int i = 0; i < right; ++i) page.answer(true);
    for (int i = 0; i < wrong; ++i) page.answer(false);
  };
}

Event both(const Event& first, const Event& second) {
  return [=](TestPage& page) {
    first(page);
    second(page);
  };
}

void discard(TestPage& page) {
  ui::Window alert;
  page.controller().endTest(&alert);
}

void stopFromAlert(TestPage& page) {
  page.tabs().userClicks(0);
  page.sheets().answerAlert(ui::kAlertAlternateReturn);
  EXPECT_EQ(page.tabs().indexOfSelectedItem(), 0);
}

/// What leads to the states in which the transitions start.
const Event kReady = [](TestPage&) {};
const Event kTesting = answers(2, 1);
const Event kToggleLearning = click("learnModeButton");
const Event kLearning = kToggleLearning;
/// The test's three answers, and one that was wrong.
const Event kLearned = both(kTesting, both(kToggleLearning, answers(0, 1)));

std::vector<Transition> answerTransitions() {
  std::vector<Transition> table;
  for (const auto& [by, sayA, sayB] :
       {std::tuple{"button", click("aIsSourceButton"), click("bIsSourceButton")},
        {"key", press(kKey1), press(kKey2)}}) {
    const std::vector<Transition> rows = {
        {"ready, right", kReady, sayA, testing(1, 1).drawnAnew().hearing("source")},
        {"ready, wrong", kReady, sayB, testing(1, 0).drawnAnew().hearing("source")},
        {"testing, right", kTesting, sayA, testing(4, 3).drawnAnew().hearing("source")},
        {"testing, wrong", kTesting, sayB, testing(4, 2).drawnAnew().hearing("source")},
        {"nine right, right", answers(8, 0), sayA, testing(9, 9).drawnAnew().hearing("source")},
        {"tenth, too few", answers(7, 2), sayB, testing(10, 7).drawnAnew().hearing("source")},
        {"tenth, enough", answers(7, 2), sayA, ready().onSheet("8/10 (80% Correct)")},
        {"nineteenth", answers(0, 18), sayB, testing(19, 0).drawnAnew().hearing("source")},
        {"last, right", answers(0, 19), sayA, ready().onSheet("1/20 (5% Correct)")},
        {"last, wrong", answers(0, 19), sayB, ready().onSheet("0/20 (0% Correct)")},
        {"learning, right", kLearning, sayA,
         learning(true, 1, 1).drawnAnew().hearing("source").besidesA("Correct")},
        {"learning, wrong", kLearning, sayB,
         learning(true, 1, 0).drawnAnew().hearing("source").besidesB("Incorrect")},
        {"learned, right", kLearned, sayA,
         learning(true, 5, 3).drawnAnew().hearing("source").besidesA("Correct")},
        {"learned for long, right", both(kLearning, answers(20, 20)), sayA,
         learning(true, 41, 21).drawnAnew().hearing("source").besidesA("Correct")},
    };
    for (Transition row : rows) {
      row.name += std::string(" answer by ") + by;
      table.push_back(std::move(row));
    }
  }
  return table;
}

std::vector<Transition> endTransitions() {
  const std::string aborted = "0/0- Test aborted";
  const Event end = click("endTestButton");
  return {
      {"ready, ended", kReady, end, ready().onSheet(aborted)},
      {"testing, ended", kTesting, end, ready().onSheet("2/3 (67% Correct)")},
      {"learning, ended", kLearning, end, learning(false, 0, 0).onSheet(aborted)},
      {"learned, ended", kLearned, end, learning(false, 0, 0).onSheet("2/4 (50% Correct)")},
      {"ready, discarded", kReady, discard, ready().drawnAnew()},
      {"testing, stopped in the alert", kTesting, stopFromAlert, ready().drawnAnew()},
      {"learned, stopped in the alert", kLearned, stopFromAlert, learning(false, 0, 0).drawnAnew()},
  };
}

std::vector<Transition> learningTransitions() {
  State switchedOffWhileRunning = ready();
  switchedOffWhileRunning.runs = true;
  return {
      {"ready, learning mode on", kReady, kToggleLearning, learning(false, 0, 0)},
      {"testing, learning mode on", kTesting, kToggleLearning, learning(true, 3, 2)},
      {"learning, learning mode off", kLearning, kToggleLearning, ready()},
      {"learned, learning mode off", kLearned, kToggleLearning, switchedOffWhileRunning},
  };
}

std::vector<Transition> monitorTransitions() {
  std::vector<Transition> table;
  for (const auto& [by, event, heard] : {std::tuple{"A button", click("aButton"), "source"},
                                         {"B button", click("bButton"), "encoded"},
                                         {"A key", press(kKeyA), "source"},
                                         {"B key", press(kKeyB), "encoded"}}) {
    const std::string name = by;
    table.push_back({"ready, " + name, kReady, event, ready().hearing(heard)});
    table.push_back({"testing, " + name, kTesting, event, testing(3, 2).hearing(heard)});
    table.push_back({"learning, " + name, kLearning, event, learning(false, 0, 0).hearing(heard)});
    table.push_back({"learned, " + name, kLearned, event, learning(true, 4, 2).hearing(heard)});
  }
  const Event source = click("sourceButton");
  table.insert(table.end(),
               {{"ready, source", kReady, source, ready().hearing("source")},
                {"testing, source", kTesting, source, testing(3, 2).hearing("source")},
                {"learning, source", kLearning, source, learning(false, 0, 0).hearing("source")},
                {"learned, source", kLearned, source,
                 learning(true, 4, 2).hearing("source").besidesB("Incorrect")},
                // The source's button is on after an answer, and its key then does nothing.
                {"ready, source key", kReady, press(kKeyS), ready().hearing("source")},
                {"testing, source key", kTesting, press(kKeyS), testing(3, 2)},
                {"learned, source key", kLearned, press(kKeyS),
                 learning(true, 4, 2).besidesB("Incorrect")}});
  return table;
}

TEST(ListeningTest, GoesFromPhaseToPhase) {
  for (const auto& rows :
       {answerTransitions(), endTransitions(), learningTransitions(), monitorTransitions()}) {
    for (const Transition& transition : rows) {
      TestPage page;
      transition.before(page);
      EXPECT_EQ(stateAfter(page, transition.event), transition.after) << transition.name;
    }
  }
}

}  // namespace
}  // namespace listening_test
