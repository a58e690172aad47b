#include "view/main/Velk_AUAACConverterCustomView.h"

#include "ui/Bundle.h"
#include "ui/Captions.h"
#include "ui/Log.h"

namespace velk {

Velk_AUAACConverterCustomView::Velk_AUAACConverterCustomView(ui::NativeView& native,
                                                             ui::Toolkit& toolkit)
    : native_(native),
      toolkit_(toolkit),
      keyBindings_(defaultKeyBindings()),
      inUse_(std::make_shared<const bool>(true)),
      exists_(std::make_shared<const bool>(true)) {
  declareConnections();
}

Velk_AUAACConverterCustomView::~Velk_AUAACConverterCustomView() {
  if (!isTornDown()) {
    ui::runGuarded([this] { cleanup(); });
  }
  // A unit may have been bound after the teardown.
  priv_removeListeners();
  if (tabView != nullptr) {
    tabView->setDelegate(nullptr);
  }
}

void Velk_AUAACConverterCustomView::declareConnections() {
  connections_.addOutlet("settingsButton", settingsButton);
  connections_.addOutlet("encoderPopup", encoderPopup);
  connections_.addOutlet("tabView", tabView);
  const auto action = [this](const char* selector,
                             void (Velk_AUAACConverterCustomView::*operation)(ui::Object*)) {
    connections_.addAction(selector,
                           [this, operation](ui::Object* sender) { (this->*operation)(sender); });
  };
  action("setOndaraPlusEncoder:", &Velk_AUAACConverterCustomView::setOndaraPlusEncoder);
  action("set128KAACPreset:", &Velk_AUAACConverterCustomView::set128KAACPreset);
  action("setStreamingPreset:", &Velk_AUAACConverterCustomView::setStreamingPreset);
  action("setHighQualityPreset:", &Velk_AUAACConverterCustomView::setHighQualityPreset);
  action("setCustomEncoder:", &Velk_AUAACConverterCustomView::setCustomEncoder);
  action("setCustomFormat:", &Velk_AUAACConverterCustomView::setCustomFormat);
  action("showSettings:", &Velk_AUAACConverterCustomView::showSettings);
  action("showHelp:", &Velk_AUAACConverterCustomView::showHelp);
}

void Velk_AUAACConverterCustomView::setControllers(const Controllers& controllers) {
  auditionController = controllers.auditionController;
  listeningTestController = controllers.listeningTestController;
  keyController = controllers.keyController;
  settingsController = controllers.settingsController;
}

std::string Velk_AUAACConverterCustomView::localized(std::string_view key) const {
  return toolkit_.bundle.localizedString(key, ui::kStringsTable);
}

}  // namespace velk
