#include "view/encoder_menu/Velk_AACEncodingViewSettingsController.h"
#include "view/main/RaisedFlag.h"
#include "view/main/Velk_AUAACConverterCustomView.h"

/// What the view does about the custom-encoder sheet. While it is open, changes of the encoder
/// refresh the sheet and leave the menu without entries for what the user only tries.
namespace velk {

void Velk_AUAACConverterCustomView::setCustomEncoder(ui::Object* /*sender*/) {
  settingsController->setOwner(this);
  RaisedFlag open(isCustomConfigurationSheetOpen);
  ui::Sheet& sheet = *settingsController->settingsSheet();
  toolkit_.sheets.beginSheet(sheet, *settingsButton, whileInUse([this, &sheet](int code) {
                               settingsController->settingsSheetDidEnd(sheet, code, this);
                             }));
  open.keep();
}

void Velk_AUAACConverterCustomView::configSheetDidClose() {
  isCustomConfigurationSheetOpen = false;
}

}  // namespace velk
