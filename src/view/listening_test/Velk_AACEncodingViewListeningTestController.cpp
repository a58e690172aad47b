#include "view/listening_test/Velk_AACEncodingViewListeningTestController.h"

#include <cstdlib>
#include <ctime>

#include "view/audition/ViewHeight.h"
#include "view/listening_test/PassThreshold.h"
#include "view/listening_test/TestTexts.h"
#include "view/main/Notifications.h"
#include "view/main/Velk_AUAACConverterCustomView.h"

namespace velk {

namespace {

constexpr int kOff = 0;
constexpr int kOn = 1;
constexpr ui::Color kCorrectColor = ui::Color::deviceRGB(0.0, 0.5, 0.0, 1.0);
constexpr ui::Color kIncorrectColor = ui::Color::deviceRGB(0.5, 0.0, 0.0, 1.0);

bool isOn(const ui::Button& button) {
  return button.state() == kOn;
}

/// An even number makes A the source.
bool drawAIsSource() {
  return 1 - (std::rand() & 1) != 0;
}

/// A key never switches a monitor button off.
void clickUnlessOn(ui::Button& button) {
  if (button.state() == kOff) {
    button.performClick();
  }
}

}  // namespace

Velk_AACEncodingViewListeningTestController::Velk_AACEncodingViewListeningTestController(
    ui::Toolkit& toolkit)
    : toolkit_(toolkit), alive_(std::make_shared<const bool>(true)) {
  std::srand(static_cast<unsigned>(std::clock()));
  aIsSource = drawAIsSource();

  connections_.addOutlet("cycleLabel", cycleLabel);
  connections_.addOutlet("sourceButton", sourceButton);
  connections_.addOutlet("aButton", aButton);
  connections_.addOutlet("bButton", bButton);
  connections_.addOutlet("aIsSourceButton", aIsSourceButton);
  connections_.addOutlet("bIsSourceButton", bIsSourceButton);
  connections_.addOutlet("aResultsText", aResultsText);
  connections_.addOutlet("bResultsText", bResultsText);
  connections_.addOutlet("endTestButton", endTestButton);
  connections_.addOutlet("learnModeButton", learnModeButton);
  connections_.addOutlet("saveResultsButton", saveResultsButton);
  connections_.addOutlet("resultsSheet", resultsSheet);
  connections_.addOutlet("encoderField", encoderField);
  connections_.addOutlet("cyclesField", cyclesField);
  connections_.addOutlet("resultsField", resultsField);
  connections_.addOutlet("summaryField", summaryField);

  using Self = Velk_AACEncodingViewListeningTestController;
  const auto action = [this](const char* selector, void (Self::*operation)(ui::Object*)) {
    connections_.addAction(selector,
                           [this, operation](ui::Object* sender) { (this->*operation)(sender); });
  };
  action("monitorSource:", &Self::monitorSource);
  action("monitorA:", &Self::monitorA);
  action("monitorB:", &Self::monitorB);
  action("chooseA:", &Self::chooseA);
  action("chooseB:", &Self::chooseB);
  action("endTest:", &Self::endTest);
  action("toggleLearnMode:", &Self::toggleLearnMode);
  action("okButtonPressed:", &Self::okButtonPressed);
}

Velk_AACEncodingViewListeningTestController::~Velk_AACEncodingViewListeningTestController() {
  ui::NotificationCenter::defaultCenter().removeObserver(this);
}

void Velk_AACEncodingViewListeningTestController::setOwner(Velk_AUAACConverterCustomView* view) {
  owner = view;
}

void Velk_AACEncodingViewListeningTestController::prepare() {
  observe();
  owner->changeHeight(kListeningTestHeight);
}

void Velk_AACEncodingViewListeningTestController::cleanup() {
  lastTestData.reset();
  ui::NotificationCenter::defaultCenter().removeObserver(this);
}

void Velk_AACEncodingViewListeningTestController::observe() {
  ui::NotificationCenter& center = ui::NotificationCenter::defaultCenter();
  // Binding again prepares a page that already observes.
  center.removeObserver(this);
  using Self = Velk_AACEncodingViewListeningTestController;
  const auto on = [&](std::string_view name, void (Self::*operation)(const ui::Notification&)) {
    center.addObserver(this, name, owner, [this, operation](const ui::Notification& notification) {
      (this->*operation)(notification);
    });
  };
  on(listeningTestMonitorSourceActionPerformedNotification, &Self::monitorSourceViaNotification);
  on(listeningTestMonitorAActionPerformedNotification, &Self::monitorAViaNotification);
  on(listeningTestMonitorBActionPerformedNotification, &Self::monitorBViaNotification);
  on(listeningTestChooseAActionPerformedNotification, &Self::chooseAViaNotification);
  on(listeningTestChooseBActionPerformedNotification, &Self::chooseBViaNotification);
}

void Velk_AACEncodingViewListeningTestController::monitorSource(ui::Object* /*sender*/) {
  aButton->setState(kOff);
  bButton->setState(kOff);
  owner->monitorEncoder(false);
}

void Velk_AACEncodingViewListeningTestController::monitorA(ui::Object* /*sender*/) {
  sourceButton->setState(kOff);
  bButton->setState(kOff);
  owner->monitorEncoder(!aIsSource);
  if (isOn(*learnModeButton)) {
    hideVerdicts();
  }
}

void Velk_AACEncodingViewListeningTestController::monitorB(ui::Object* /*sender*/) {
  aButton->setState(kOff);
  sourceButton->setState(kOff);
  owner->monitorEncoder(aIsSource);
  if (isOn(*learnModeButton)) {
    hideVerdicts();
  }
}

void Velk_AACEncodingViewListeningTestController::chooseA(ui::Object* /*sender*/) {
  nextCycle();
}

void Velk_AACEncodingViewListeningTestController::chooseB(ui::Object* /*sender*/) {
  nextCycle();
}

void Velk_AACEncodingViewListeningTestController::nextCycle() {
  if (!owner->isPerformingListeningTest()) {
    owner->setPerformingListeningTest(true);
  }
  const bool learning = isOn(*learnModeButton);

  const bool correct =
      (isOn(*aIsSourceButton) && aIsSource) || (isOn(*bIsSourceButton) && !aIsSource);
  if (correct) {
    ++correctAnswers;
  }

  if (learning) {
    showVerdict(correct);
  } else if (cycle < kTrialsInTest && requiredCorrectAnswersForTrialSize(cycle) > correctAnswers) {
    const TestTexts texts(toolkit_.bundle, toolkit_.localization);
    cycleLabel->setStringValue(texts.text("Test Cycle: %@ of 20", {texts.plain(cycle + 1)}));
  } else {
    ++cycle;
    endTest(this);
    return;
  }

  ++cycle;
  aIsSource = drawAIsSource();
  sourceButton->setState(kOn);
  monitorSource(this);
  aIsSourceButton->setState(kOff);
  bIsSourceButton->setState(kOff);
}

void Velk_AACEncodingViewListeningTestController::showVerdict(bool correct) {
  const bool besideA = isOn(*aIsSourceButton);
  ui::TextField& verdict = besideA ? *aResultsText : *bResultsText;
  ui::TextField& other = besideA ? *bResultsText : *aResultsText;
  other.setHidden(true);
  const TestTexts texts(toolkit_.bundle, toolkit_.localization);
  verdict.setStringValue(texts.text(correct ? "Correct" : "Incorrect"));
  verdict.setTextColor(correct ? kCorrectColor : kIncorrectColor);
  verdict.setHidden(false);
}

void Velk_AACEncodingViewListeningTestController::hideVerdicts() {
  aResultsText->setHidden(true);
  bResultsText->setHidden(true);
}

void Velk_AACEncodingViewListeningTestController::showFirstCycle() {
  const TestTexts texts(toolkit_.bundle, toolkit_.localization);
  cycleLabel->setStringValue(texts.text("Test Cycle: %@", {texts.plain(1)}));
}

void Velk_AACEncodingViewListeningTestController::endTest(ui::Object* sender) {
  if (dynamic_cast<ui::Window*>(sender) == nullptr) {
    prepareResultsSheetAndShow();
  }
  cycle = 1;
  aIsSource = drawAIsSource();
  if (learnModeButton->state() == kOff) {
    showFirstCycle();
  } else {
    const TestTexts texts(toolkit_.bundle, toolkit_.localization);
    cycleLabel->setStringValue(texts.text("Learning Mode"));
  }
  hideVerdicts();
  aIsSourceButton->setState(kOff);
  bIsSourceButton->setState(kOff);
  correctAnswers = 0;
  owner->setPerformingListeningTest(false);
}

void Velk_AACEncodingViewListeningTestController::toggleLearnMode(ui::Object* /*sender*/) {
  if (learnModeButton->state() != kOff) {
    const TestTexts texts(toolkit_.bundle, toolkit_.localization);
    cycleLabel->setStringValue(texts.text("Learning Mode"));
    return;
  }
  hideVerdicts();
  cycle = 1;
  correctAnswers = 0;
  showFirstCycle();
}

std::uint32_t Velk_AACEncodingViewListeningTestController::requiredCorrectAnswersForTrialSize(
    std::uint32_t trialSize) const {
  return requiredCorrectAnswers(trialSize);
}

void Velk_AACEncodingViewListeningTestController::monitorSourceViaNotification(
    const ui::Notification& /*notification*/) {
  clickUnlessOn(*sourceButton);
}

void Velk_AACEncodingViewListeningTestController::monitorAViaNotification(
    const ui::Notification& /*notification*/) {
  clickUnlessOn(*aButton);
}

void Velk_AACEncodingViewListeningTestController::monitorBViaNotification(
    const ui::Notification& /*notification*/) {
  clickUnlessOn(*bButton);
}

void Velk_AACEncodingViewListeningTestController::chooseAViaNotification(
    const ui::Notification& /*notification*/) {
  aIsSourceButton->performClick();
}

void Velk_AACEncodingViewListeningTestController::chooseBViaNotification(
    const ui::Notification& /*notification*/) {
  bIsSourceButton->performClick();
}

}  // namespace velk
