#pragma once

#include <chrono>
#include <filesystem>
#include <memory>
#include <string>
#include <vector>

#include "view/fakes/BoundView.h"
#include "view/fakes/FakeControls.h"
#include "view/fakes/FakeInterfaceFile.h"
#include "view/fakes/FakeTabView.h"
#include "view/listening_test/Draws.h"

namespace listening_test {

/// A bound view over fakes that shows the listening-test page, with a test set up in which A is the
/// source. Every further draw is fixed before the event that causes it.
class TestPage {
 public:
  TestPage() : unit(record.calls), view(std::make_unique<fakes::BoundView>(record, unit)) {
    open();
  }
  TestPage(const std::filesystem::path& resources, const std::string& language,
           const std::string& locale)
      : unit(record.calls),
        view(std::make_unique<fakes::BoundView>(record, unit, resources, language, locale)) {
    open();
  }

  velk::Velk_AACEncodingViewListeningTestController& controller() {
    return view->objects().listeningTestController();
  }
  template <class Control>
  Control& control(const std::string& outlet) {
    return view->control<Control>("listeningTestController." + outlet);
  }
  fakes::FakeButton& button(const std::string& outlet) {
    return control<fakes::FakeButton>(outlet);
  }
  std::string text(const std::string& outlet) {
    return control<fakes::FakeTextField>(outlet).text();
  }
  fakes::FakeTabView& tabs() { return view->control<fakes::FakeTabView>("view.tabView"); }
  fakes::FakeSheets& sheets() { return view->toolkit.sheets; }
  bool isSheetOpen() { return control<fakes::FakeSheet>("resultsSheet").visible; }

  void advance(int milliseconds) { view->advance(std::chrono::milliseconds(milliseconds)); }
  void click(const std::string& outlet) { button(outlet).userClicks(); }

  /// The host sets the encoder.
  void chooseEncoder(const fakes::FakeConverter::Setting& setting) {
    unit.hostSetsSetting(setting);
    advance(60);
  }

  /// Sets up a test in which A, or B, is the source.
  void restart(bool aIsSource) {
    ui::Window alert;
    nextDrawMakesASource(aIsSource);
    controller().endTest(&alert);
    aIsSource_ = aIsSource;
    advance(60);
    record.calls.clear();
  }
  /// Answers by a click; in the next cycle A, or B, is the source.
  void answer(bool correctly, bool nextAIsSource = true) {
    const bool sayA = correctly == aIsSource_;
    nextDrawMakesASource(nextAIsSource);
    click(sayA ? "aIsSourceButton" : "bIsSourceButton");
    aIsSource_ = nextAIsSource;
  }
  void answerTimes(int times, bool correctly) {
    for (int i = 0; i < times; ++i) {
      answer(correctly, i % 3 != 0);
    }
  }
  void endTest() {
    nextDrawMakesASource(true);
    click("endTestButton");
    aIsSource_ = true;
  }
  void confirmResults() { view->control<fakes::FakeButton>(fakes::kResultsOKButton).userClicks(); }

  /// What happened to the page's and the menu's controls, the unit's properties and the sheets,
  /// without the page's name.
  std::vector<std::string> happened() const {
    std::vector<std::string> found;
    const std::string page = "listeningTestController.";
    for (std::string line :
         record.calls.starting(page, "view.encoderPopup.setEnabled", "unit.setProperty", "sheets.",
                               "native.applyFrameSize")) {
      if (line.starts_with(page)) {
        line.erase(0, page.size());
      }
      found.push_back(line);
    }
    return found;
  }

  fakes::Record record;
  fakes::FakeConverter unit;
  std::unique_ptr<fakes::BoundView> view;

 private:
  void open() {
    tabs().userClicks(1);
    restart(true);
  }

  bool aIsSource_ = true;
};

}  // namespace listening_test
