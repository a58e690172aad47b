#include <chrono>

#include "ui/Localization.h"
#include "ui/Toolkit.h"
#include "view/listening_test/ResultsText.h"
#include "view/listening_test/TestTexts.h"
#include "view/listening_test/Velk_AACEncodingViewListeningTestController.h"
#include "view/listening_test/Verdict.h"
#include "view/main/Velk_AUAACConverterCustomView.h"

/// The listening test's results: the sheet that shows them and the file that keeps them.
namespace velk {

namespace {

constexpr int kOkReturn = 1;

}  // namespace

void Velk_AACEncodingViewListeningTestController::prepareResultsSheetAndShow() {
  const TestTexts texts(toolkit_.bundle, toolkit_.localization);
  const std::uint32_t trials = cycle - 1;
  encoderField->setStringValue(owner->getEncoderName());
  cyclesField->setIntegerValue(trials);
  resultsField->setStringValue(trials > 0
                                   ? texts.score("%@/%@ (%@ Correct)", trials, correctAnswers)
                                   : texts.text("0/0- Test aborted"));
  summaryField->setStringValue(texts.verdict(sheetVerdict(trials, correctAnswers), trials));
  lastTestData = TestData{cycle, correctAnswers};
  toolkit_.sheets.beginSheet(*resultsSheet, *sourceButton, [](int /*code*/) {});
}

void Velk_AACEncodingViewListeningTestController::okButtonPressed(ui::Object* /*sender*/) {
  const std::weak_ptr<const bool> alive = alive_;
  if (saveResultsButton->state() == 1) {
    saveResultFile();
  }
  if (alive.expired()) {
    return;
  }
  toolkit_.sheets.endSheet(*resultsSheet, kOkReturn);
  toolkit_.sheets.orderOut(*resultsSheet);
}

void Velk_AACEncodingViewListeningTestController::saveResultFile() {
  const TestTexts texts(toolkit_.bundle, toolkit_.localization);
  const ui::SavePanelTexts panel = {
      texts.text("Save Test Results"),
      texts.text("ListeningTestResults-%@", {texts.plain(fileID)}),
      "txt",
  };
  // A cancelled panel uses up its number too.
  ++fileID;

  // The view may be torn down, and this controller destroyed, while the panel runs.
  const std::weak_ptr<const bool> alive = alive_;
  const std::optional<std::filesystem::path> place =
      toolkit_.sheets.runSavePanel(panel, *sourceButton);
  if (alive.expired() || !place || !lastTestData) {
    return;
  }

  const TestResults results = {
      toolkit_.localization.longDateShortTime(std::chrono::system_clock::now()),
      owner->getEncoderName(),
      lastTestData->cycle,
      lastTestData->correct,
  };
  // A failed write is silent.
  static_cast<void>(toolkit_.writeMacRoman(*place, resultsText(results, texts)));
}

}  // namespace velk
