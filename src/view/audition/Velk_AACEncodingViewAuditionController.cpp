#include "view/audition/Velk_AACEncodingViewAuditionController.h"

#include "ui/TabView.h"
#include "view/audition/ViewHeight.h"
#include "view/main/Notifications.h"
#include "view/main/Velk_AUAACConverterCustomView.h"

namespace velk {

namespace {

constexpr double kPollInterval = 0.075;
constexpr int kSourceSegment = 0;
constexpr int kEncodedSegment = 1;
constexpr int kStereoPage = 0;
constexpr int kMonoPage = 1;

bool isOn(const ui::Button* button) {
  return button != nullptr && button->state() == 1;
}

void latch(ui::LevelIndicator& lamp) {
  if (lamp.intValue() == kLampDark) {
    lamp.setIntValue(kLampLit);
  }
}

}  // namespace

Velk_AACEncodingViewAuditionController::Velk_AACEncodingViewAuditionController(ui::Toolkit& toolkit)
    : toolkit_(toolkit) {
  connections_.addOutlet("monitorControl", monitorControl);
  connections_.addOutlet("sourceClipIndicator", sourceClipIndicator);
  connections_.addOutlet("encoderClipIndicator", encoderClipIndicator);
  connections_.addOutlet("resetButton", resetButton);
  connections_.addOutlet("showDetailsButton", showDetailsButton);
  connections_.addOutlet("showDetailsText", showDetailsText);
  connections_.addOutlet("monoStereoTabView", monoStereoTabView);
  connections_.addOutlet("helpButton", helpButton);
  meters_.declareOutlets(connections_);
  connections_.addAction("monitorChanged:", [this](ui::Object* sender) { monitorChanged(sender); });
  connections_.addAction("resetClip:", [this](ui::Object* sender) { resetClip(sender); });
  connections_.addAction("toggleShowDetails:",
                         [this](ui::Object* sender) { toggleShowDetails(sender); });
}

Velk_AACEncodingViewAuditionController::~Velk_AACEncodingViewAuditionController() {
  ui::NotificationCenter::defaultCenter().removeObserver(this);
}

void Velk_AACEncodingViewAuditionController::setOwner(Velk_AUAACConverterCustomView* view) {
  owner = view;
  monoStereoTabView->selectItemAtIndex(
      readingSetFor(owner->numChannels()) == ReadingSet::Stereo ? kStereoPage : kMonoPage);
}

void Velk_AACEncodingViewAuditionController::prepare() {
  showMonitoredSignal();
  // Binding again prepares a page that is already live.
  if (clipIndicatorTimer) {
    clipIndicatorTimer->invalidate();
  }
  clipIndicatorTimer =
      toolkit_.runLoop.scheduledTimer(kPollInterval, [this] { updateClipIndicators(); });
  clipIndicatorTimer->addToMode(ui::RunLoopMode::EventTracking);
  clipIndicatorTimer->addToMode(ui::RunLoopMode::ModalPanel);
  observe();
  owner->changeHeight(auditionHeight(isOn(showDetailsButton)));
}

void Velk_AACEncodingViewAuditionController::cleanup() {
  ui::NotificationCenter::defaultCenter().removeObserver(this);
  if (clipIndicatorTimer) {
    clipIndicatorTimer->invalidate();
    clipIndicatorTimer.reset();
  }
  owner->changeHeight(kCollapsedAuditionHeight);
}

void Velk_AACEncodingViewAuditionController::observe() {
  ui::NotificationCenter& center = ui::NotificationCenter::defaultCenter();
  center.removeObserver(this);
  const auto on = [&](std::string_view name, auto operation) {
    center.addObserver(this, name, owner, [this, operation](const ui::Notification& notification) {
      (this->*operation)(notification);
    });
  };
  using Self = Velk_AACEncodingViewAuditionController;
  on(auAACSourceSelectionChangedNotification, &Self::updateMonitor);
  on(auAACListeningTestStateChangedNotification, &Self::handleListeningTestStateChanged);
  on(monitorSourceActionPerformedNotification, &Self::monitorSource);
  on(monitorEncodedActionPerformedNotification, &Self::monitorEncoder);
  on(clearClipActionPerformedNotification, &Self::handleClearClip);
}

void Velk_AACEncodingViewAuditionController::showMonitoredSignal() {
  monitorControl->setSelectedSegment(owner->isMonitoringEncoder() ? kEncodedSegment
                                                                  : kSourceSegment);
}

void Velk_AACEncodingViewAuditionController::monitorChanged(ui::Object* /*sender*/) {
  owner->monitorEncoder(monitorControl->selectedSegment() != kSourceSegment);
}

void Velk_AACEncodingViewAuditionController::monitorSource(
    const ui::Notification& /*notification*/) {
  if (owner->isPerformingListeningTest()) {
    return;
  }
  owner->monitorEncoder(false);
  monitorControl->setSelectedSegment(kSourceSegment);
}

void Velk_AACEncodingViewAuditionController::monitorEncoder(
    const ui::Notification& /*notification*/) {
  if (owner->isPerformingListeningTest()) {
    return;
  }
  owner->monitorEncoder(true);
  monitorControl->setSelectedSegment(kEncodedSegment);
}

void Velk_AACEncodingViewAuditionController::updateMonitor(
    const ui::Notification& /*notification*/) {
  if (!owner->isPerformingListeningTest()) {
    showMonitoredSignal();
  }
}

void Velk_AACEncodingViewAuditionController::handleListeningTestStateChanged(
    const ui::Notification& notification) {
  monitorControl->setHidden(owner->isPerformingListeningTest());
  updateMonitor(notification);
}

void Velk_AACEncodingViewAuditionController::updateClipIndicators() {
  bool sourceClipped = false;
  bool encodedClipped = false;
  owner->isSourceClipped(sourceClipped, encodedClipped);
  if (sourceClipped) {
    latch(*sourceClipIndicator);
  }
  if (encodedClipped) {
    latch(*encoderClipIndicator);
  }

  // A failed read leaves the inter-sample peaks at this floor, where they raise nothing.
  PeakStatistics block{};
  for (TruePeakStats& record : block) {
    record.mInterSamplePeak = kMeterFloor;
  }
  owner->getPeakStats(block);
  meters_.poll(block, readingSetFor(owner->numChannels()), toolkit_.localization);
}

void Velk_AACEncodingViewAuditionController::resetClip(ui::Object* /*sender*/) {
  owner->resetClippingAndPeaks();
  sourceClipIndicator->setIntValue(kLampDark);
  encoderClipIndicator->setIntValue(kLampDark);
  meters_.clearHeldValues();
  meters_.clearControls(readingSetFor(owner->numChannels()));
}

void Velk_AACEncodingViewAuditionController::handleClearClip(
    const ui::Notification& /*notification*/) {
  resetClip(this);
}

void Velk_AACEncodingViewAuditionController::toggleShowDetails(ui::Object* sender) {
  expand(isOn(dynamic_cast<ui::Button*>(sender)));
}

void Velk_AACEncodingViewAuditionController::expand() {
  expand(true);
}

void Velk_AACEncodingViewAuditionController::collapse() {
  expand(false);
}

void Velk_AACEncodingViewAuditionController::expand(bool show) {
  if (isOn(showDetailsButton) != show) {
    showDetailsButton->setState(show ? 1 : 0);
  }
  const double height = auditionHeight(show);
  monoStereoTabView->setHidden(!show);
  showDetailsText->setStringValue(owner->localized(show ? "Hide Details" : "Show Details"));
  owner->changeHeight(height);
  if (helpButton != nullptr) {
    helpButton->setFrameOrigin({helpButton->frameOrigin().x, helpButtonY(height)});
  }
}

}  // namespace velk
