#include "view/keys/Velk_AACEncodingViewKeyController.h"

namespace velk {

namespace {

constexpr int kDoneReturn = 1;
constexpr int kCancelReturn = 0;

}  // namespace

Velk_AACEncodingViewKeyController::Velk_AACEncodingViewKeyController(ui::Toolkit& toolkit)
    : toolkit_(toolkit) {
  connections_.addOutlet("keySettingsSheet", keySettingsSheet);
  connections_.addOutlet("monitorSourceAuditionField", monitorSourceAuditionField);
  connections_.addOutlet("monitorCodecAuditionField", monitorCodecAuditionField);
  connections_.addOutlet("clearClipField", clearClipField);
  connections_.addOutlet("monitorSourceTestField", monitorSourceTestField);
  connections_.addOutlet("monitorATestField", monitorATestField);
  connections_.addOutlet("monitorBTestField", monitorBTestField);
  connections_.addOutlet("chooseATestField", chooseATestField);
  connections_.addOutlet("chooseBTestField", chooseBTestField);
  connections_.addOutlet("doneButton", doneButton);
  connections_.addOutlet("cancelButton", cancelButton);
  connections_.addAction("donePressed:", [this](ui::Object* sender) { donePressed(sender); });
  connections_.addAction("cancelPressed:", [this](ui::Object* sender) { cancelPressed(sender); });
}

void Velk_AACEncodingViewKeyController::donePressed(ui::Object* /*sender*/) {
  toolkit_.sheets.endSheet(*keySettingsSheet, kDoneReturn);
}

void Velk_AACEncodingViewKeyController::cancelPressed(ui::Object* /*sender*/) {
  toolkit_.sheets.endSheet(*keySettingsSheet, kCancelReturn);
}

void Velk_AACEncodingViewKeyController::settingsSheetDidEnd(
    ui::Sheet& sheet, int /*returnCode*/, Velk_AUAACConverterCustomView* /*contextInfo*/) {
  toolkit_.sheets.orderOut(sheet);
}

}  // namespace velk
