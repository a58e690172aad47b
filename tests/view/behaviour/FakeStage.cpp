#include <stdexcept>
#include <string>

#include "view/behaviour/Stage.h"
#include "view/fakes/BoundView.h"
#include "view/fakes/FakeControls.h"
#include "view/fakes/FakeInterfaceFile.h"
#include "view/fakes/FakePopUpButton.h"
#include "view/fakes/FakeTabView.h"

namespace behaviour {

namespace {

using namespace fakes;

/// The stage without a toolkit.
class FakeStage final : public Stage {
 public:
  explicit FakeStage(const PrepareUnit& prepare) : unit_(record_.calls) {
    if (prepare) {
      prepare(unit_);
    }
    bound_ = std::make_unique<BoundView>(record_, unit_);
    bound_->advance(std::chrono::milliseconds(100));
    record_.calls.clear();
    record_.log.clear();
    record_.notifications.clear();
  }

  FakeConverter& unit() override { return unit_; }

  void click(std::string_view button) override { control<FakeButton>(button).userClicks(); }
  void selectSegment(std::string_view name, int segment) override {
    control<FakeSegmentedControl>(name).userSelects(segment);
  }
  void pickItem(std::string_view popUp, int index) override {
    control<FakePopUpButton>(popUp).userPicks(index);
  }
  void dragSlider(std::string_view slider, double value) override {
    control<FakeSlider>(slider).userDrags(value);
  }
  void clickTab(int index) override { control<FakeTabView>("view.tabView").userClicks(index); }
  void pressKey(std::uint16_t keyCode) override { bound_->native->pressKey(keyCode); }
  void clickHelp(int tag) override {
    for (const char* name : {"auditionController.helpButton", kListeningTestHelpButton}) {
      if (control<FakeButton>(name).tag() == tag) {
        click(name);
        return;
      }
    }
    throw std::out_of_range("no help button has the tag " + std::to_string(tag));
  }
  void confirmResults() override { click(kResultsOKButton); }
  void answerAlert(bool stop) override {
    sheets().answerAlert(stop ? ui::kAlertAlternateReturn : ui::kAlertDefaultReturn);
  }
  void willSaveTo(std::optional<std::filesystem::path> file) override {
    sheets().saveAnswer = std::move(file);
  }

  void requestSize(double width, double height) override {
    bound_->native->setFrameSize({width, height});
  }
  void moveToOtherSuperview() override { bound_->native->moveToSuperview(true); }
  void removeFromSuperview() override { bound_->native->removeFromSuperview(); }

  void advance(std::chrono::milliseconds time) override { bound_->advance(time); }

  bool isHidden(std::string_view name) override { return control<ui::View>(name).isHidden(); }
  bool isEnabled(std::string_view name) override { return control<ui::View>(name).isEnabled(); }
  int state(std::string_view button) override { return control<FakeButton>(button).state(); }
  int selectedSegment(std::string_view name) override {
    return control<FakeSegmentedControl>(name).selectedSegment();
  }
  int lamp(std::string_view indicator) override {
    return control<FakeLevelIndicator>(indicator).intValue();
  }
  std::string text(std::string_view field) override { return control<FakeTextField>(field).text(); }
  bool isRed(std::string_view field) override {
    return control<FakeTextField>(field).color() == ui::Color::deviceRGB(0.5, 0, 0, 1);
  }
  std::vector<std::string> itemTitles(std::string_view popUp) override {
    return control<FakePopUpButton>(popUp).titles();
  }
  int selectedItem(std::string_view popUp) override {
    return control<FakePopUpButton>(popUp).indexOfSelectedItem();
  }
  int selectedTab(std::string_view tabView) override {
    return control<FakeTabView>(tabView).indexOfSelectedItem();
  }
  double sliderValue(std::string_view slider) override {
    return control<FakeSlider>(slider).position();
  }
  bool isSheetOpen(std::string_view sheet) override { return control<FakeSheet>(sheet).visible; }
  std::string alertMessage() override {
    return sheets().isAlertOpen() ? sheets().alertTexts().message : std::string();
  }
  double width() override { return bound_->native->frameSize().width; }
  double height() override { return bound_->native->frameSize().height; }
  std::vector<std::string> proposedNames() override {
    std::vector<std::string> names;
    for (const auto& panel : sheets().savePanels()) {
      names.push_back(panel.proposedName);
    }
    return names;
  }
  std::vector<std::string> openedHelp() override { return bound_->toolkit.helpManager.anchors(); }

  const std::vector<std::string>& logLines() override { return record_.log.lines(); }
  const std::vector<std::string>& notifications() override { return record_.notifications.names(); }

 private:
  template <class Control>
  Control& control(std::string_view name) {
    return bound_->control<Control>(name);
  }
  FakeSheets& sheets() { return bound_->toolkit.sheets; }

  Record record_;
  FakeConverter unit_;
  std::unique_ptr<BoundView> bound_;
};

}  // namespace

std::unique_ptr<Stage> setStage(const PrepareUnit& prepare) {
  return std::make_unique<FakeStage>(prepare);
}

}  // namespace behaviour
