#pragma once

#include <memory>
#include <vector>

#include "ui/InterfaceFile.h"
#include "view/audition/Velk_AACEncodingViewAuditionController.h"
#include "view/encoder_menu/Velk_AACEncodingViewSettingsController.h"
#include "view/keys/Velk_AACEncodingViewKeyController.h"
#include "view/listening_test/Velk_AACEncodingViewListeningTestController.h"
#include "view/main/Velk_AUAACConverterCustomView.h"

namespace velk {

/// The view and its four controllers, which an interface file knows as "view",
/// "auditionController", "listeningTestController", "settingsController" and "keyController". The
/// controllers outlive the view, whose teardown still needs them.
class InterfaceObjects final : public ui::InterfaceObjects {
 public:
  /// Both must outlive this object.
  InterfaceObjects(ui::NativeView& native, ui::Toolkit& toolkit);
  ~InterfaceObjects() override;

  Velk_AUAACConverterCustomView& view() override { return view_; }
  const std::vector<Named>& objects() override { return objects_; }

  Velk_AACEncodingViewAuditionController& auditionController() { return auditionController_; }
  Velk_AACEncodingViewListeningTestController& listeningTestController() {
    return listeningTestController_;
  }
  Velk_AACEncodingViewSettingsController& settingsController() { return settingsController_; }
  Velk_AACEncodingViewKeyController& keyController() { return keyController_; }

 private:
  Velk_AACEncodingViewAuditionController auditionController_;
  Velk_AACEncodingViewListeningTestController listeningTestController_;
  Velk_AACEncodingViewSettingsController settingsController_;
  Velk_AACEncodingViewKeyController keyController_;
  Velk_AUAACConverterCustomView view_;
  std::vector<Named> objects_;
};

std::unique_ptr<InterfaceObjects> makeInterfaceObjects(ui::NativeView& native,
                                                       ui::Toolkit& toolkit);

}  // namespace velk
