#include "view/keys/Velk_AACEncodingViewKeyController.h"

namespace velk {

namespace {

constexpr int kDoneReturn = 1;
constexpr int kCancelReturn = 0;

}  // namespace

Velk_AACEncodingViewKeyController::Velk_AACEncodingViewKeyController(ui::Toolkit& toolkit)
    : toolkit_(toolkit) {
  connections_.outlet("keySettingsSheet", keySettingsSheet);
  connections_.outlet("monitorSourceAuditionField", monitorSourceAuditionField);
  connections_.outlet("monitorCodecAuditionField", monitorCodecAuditionField);
  connections_.outlet("clearClipField", clearClipField);
  connections_.outlet("monitorSourceTestField", monitorSourceTestField);
  connections_.outlet("monitorATestField", monitorATestField);
  connections_.outlet("monitorBTestField", monitorBTestField);
  connections_.outlet("chooseATestField", chooseATestField);
  connections_.outlet("chooseBTestField", chooseBTestField);
  connections_.outlet("doneButton", doneButton);
  connections_.outlet("cancelButton", cancelButton);
  connections_.action("donePressed:", [this](ui::Object* sender) { donePressed(sender); });
  connections_.action("cancelPressed:", [this](ui::Object* sender) { cancelPressed(sender); });
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
