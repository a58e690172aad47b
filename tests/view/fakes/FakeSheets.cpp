#include "view/fakes/FakeSheets.h"

#include <stdexcept>
#include <utility>

#include "view/fakes/FakeControls.h"

namespace fakes {

namespace {

std::string nameOf(const ui::View& control) {
  if (const auto* button = dynamic_cast<const FakeButton*>(&control)) {
    return button->name();
  }
  return "another control";
}

}  // namespace

FakeSheets::FakeSheets(CallLog& log) : log_(log) {}

FakeSheets::~FakeSheets() = default;

void FakeSheets::answerAlert(int code) {
  if (!alertEnd_) {
    throw std::logic_error("no alert is open");
  }
  ui::Window alert;
  std::exchange(alertEnd_, {})(alert, code);
}

void FakeSheets::cancelAll() {
  for (const auto& [sheet, didEnd] : std::exchange(open_, {})) {
    sheet->visible = false;
  }
  alertEnd_ = {};
}

void FakeSheets::beginSheet(ui::Sheet& sheet, ui::View& control,
                            std::function<void(int code)> didEnd) {
  auto& fake = dynamic_cast<FakeSheet&>(sheet);
  log_.add("sheets.beginSheet ", fake.name(), " over ", nameOf(control));
  requireOpening();
  fake.visible = true;
  open_[&fake] = std::move(didEnd);
}

void FakeSheets::endSheet(ui::Sheet& sheet, int code) {
  auto& fake = dynamic_cast<FakeSheet&>(sheet);
  log_.add("sheets.endSheet ", fake.name(), " ", code);
  const auto found = open_.find(&fake);
  if (found == open_.end()) {
    return;
  }
  const std::function<void(int)> didEnd = std::move(found->second);
  open_.erase(found);
  if (didEnd) {
    didEnd(code);
  }
}

void FakeSheets::orderOut(ui::Sheet& sheet) {
  auto& fake = dynamic_cast<FakeSheet&>(sheet);
  log_.add("sheets.orderOut ", fake.name());
  fake.visible = false;
}

void FakeSheets::beginAlertSheet(const ui::AlertTexts& texts, ui::View& control,
                                 std::function<void(ui::Window& alert, int code)> didEnd) {
  log_.add("sheets.beginAlertSheet over ", nameOf(control));
  requireOpening();
  alertTexts_ = texts;
  alertEnd_ = std::move(didEnd);
}

void FakeSheets::requireOpening() const {
  if (cannotOpen) {
    throw std::runtime_error("the window cannot be opened");
  }
}

std::optional<std::filesystem::path> FakeSheets::runSavePanel(const ui::SavePanelTexts& texts,
                                                              ui::View& control) {
  log_.add("sheets.runSavePanel ", texts.proposedName, " over ", nameOf(control));
  savePanels_.push_back(texts);
  if (whileSavePanelRuns) {
    whileSavePanelRuns();
  }
  return saveAnswer;
}

}  // namespace fakes
