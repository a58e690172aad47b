#include <string>

#include "ui/Log.h"
#include "view/main/Velk_AUAACConverterCustomView.h"

/// The two switches of the unit's state: listening test and monitored signal. The unit announces
/// each change, and the event listener posts it.
namespace velk {

void Velk_AUAACConverterCustomView::setPerformingListeningTest(bool performing) {
  if (writeProperty(mAU, kConverterProperty_ListeningTestActive, performing ? 1 : 0) == noErr) {
    isPerformingListeningTest_ = performing;
    encoderPopup->setEnabled(!performing);
  }
}

void Velk_AUAACConverterCustomView::monitorEncoder(bool encoded) {
  const OSStatus status = writeProperty(mAU, kConverterProperty_MonitorSource, encoded ? 0 : 1);
  if (status != noErr) {
    ui::log("There was an error changing the source to monitor: " + std::to_string(status));
    return;
  }
  monitoringEncoder_ = encoded;
}

}  // namespace velk
