#include "view/keys/Velk_AACEncodingViewKeyController.h"
#include "view/main/Velk_AUAACConverterCustomView.h"

namespace velk {

void Velk_AUAACConverterCustomView::showSettings(ui::Object* /*sender*/) {
  keyController->setOwner(this);
  ui::Sheet& sheet = *keyController->settingsSheet();
  toolkit_.sheets.beginSheet(sheet, *settingsButton, whileInUse([this, &sheet](int code) {
                               keyController->settingsSheetDidEnd(sheet, code, this);
                             }));
}

}  // namespace velk
