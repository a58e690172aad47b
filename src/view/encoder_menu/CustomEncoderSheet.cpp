#include "view/encoder_menu/Velk_AACEncodingViewSettingsController.h"
#include "view/main/RaisedFlag.h"
#include "view/main/Velk_AUAACConverterCustomView.h"

/// The view's part of the custom-encoder sheet. While it is open, encoder changes refresh the sheet
/// and not the menu, which gets no entries for settings that the user only tries.
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
