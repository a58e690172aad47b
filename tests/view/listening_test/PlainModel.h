#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace listening_test {

/// What a view shows and a unit holds, as far as a listening test is concerned; one value per line.
using Sight = std::vector<std::string>;

/// A second, plain implementation of the listening test, without controls, notifications or a unit:
/// each operation is something that a user, a host or the unit does.
class PlainModel {
 public:
  /// The newest draw: whether the next test cycle makes A the source.
  bool nextAIsSource = true;

  // A user on the test page.
  void clicksSource();
  void clicksA();
  void clicksB();
  void clicksAIsSource() { answers(true); }
  void clicksBIsSource() { answers(false); }
  void clicksEndTest();
  void clicksLearningMode();
  // A user on the audition page.
  void selectsSegment(int segment);
  // A user on either page.
  void pressesS();
  void pressesA();
  void pressesB();
  void presses1();
  void presses2();
  void clicksTab(int tab);
  // A user in front of the alert or the results sheet.
  void answersAlert(bool stop);
  void clicksSaveBox() { savesResults_ = !savesResults_; }
  /// What the results file says, without its date; nothing when none is written.
  std::optional<std::string> confirmsResults(bool choosesFile);

  // The host and the unit.
  void hostSetsMonitor(bool source);
  void hostSetsTest(bool active);
  void unitRefusesNextMonitorWrite() { refusesMonitor_ = true; }
  void unitRefusesNextTestWrite() { refusesTest_ = true; }
  /// The unit's announcements arrive.
  void settles();

  int tab() const { return tab_; }
  bool isASource() const { return aIsSource_; }
  bool isAlertOpen() const { return requestedTab_.has_value(); }
  bool isSheetOpen() const { return sheetOpen_; }
  bool isSegmentHidden() const { return segmentHidden_; }
  bool savesResults() const { return savesResults_; }
  Sight sight() const;

 private:
  enum class Announcement { Monitor, Test };
  struct Verdict {
    bool hidden = true;
    std::string text;
    bool red = false;
  };

  bool writesMonitor(bool source);
  bool writesTest(bool active);
  void monitors(bool encoded);
  void performsTest(bool performing);
  void showsMonitoredSignal() { segment_ = monitorsEncoder_ ? 1 : 0; }
  void answers(bool sayA);
  void ends(bool showsSheet);
  void hidesVerdicts();
  std::string scoreOf(std::uint32_t trials, std::uint32_t correct) const;

  // The unit.
  bool unitPlaysSource_ = false;
  bool unitTests_ = false;
  bool refusesMonitor_ = false;
  bool refusesTest_ = false;
  std::vector<Announcement> announced_;
  // The view.
  int tab_ = 1;
  bool monitorsEncoder_ = true;
  bool performsTest_ = false;
  bool menuEnabled_ = true;
  std::optional<int> requestedTab_;
  int segment_ = 1;
  bool segmentHidden_ = false;
  // The test.
  std::uint32_t cycle_ = 1;
  std::uint32_t correct_ = 0;
  bool aIsSource_ = true;
  bool learns_ = false;
  bool sourceOn_ = false;
  bool aOn_ = false;
  bool bOn_ = false;
  std::string label_ = "Test Cycle: 1";
  Verdict besideA_;
  Verdict besideB_;
  // Its results.
  bool sheetOpen_ = false;
  bool savesResults_ = false;
  std::string cycles_;
  std::string results_;
  std::string summary_;
  std::uint32_t lastTrials_ = 0;
  std::uint32_t lastCorrect_ = 0;
  std::uint32_t savePanels_ = 0;
};

}  // namespace listening_test
