#include "view/factory/InterfaceObjects.h"

namespace velk {

InterfaceObjects::InterfaceObjects(ui::NativeView& native, ui::Toolkit& toolkit)
    : auditionController_(toolkit),
      listeningTestController_(toolkit),
      settingsController_(toolkit),
      keyController_(toolkit),
      view_(native, toolkit),
      objects_{{"view", &view_.connections()},
               {"auditionController", &auditionController_.connections()},
               {"listeningTestController", &listeningTestController_.connections()},
               {"settingsController", &settingsController_.connections()},
               {"keyController", &keyController_.connections()}} {
  view_.setControllers(
      {&auditionController_, &listeningTestController_, &keyController_, &settingsController_});
}

InterfaceObjects::~InterfaceObjects() = default;

std::unique_ptr<InterfaceObjects> makeInterfaceObjects(ui::NativeView& native,
                                                       ui::Toolkit& toolkit) {
  return std::make_unique<InterfaceObjects>(native, toolkit);
}

}  // namespace velk
