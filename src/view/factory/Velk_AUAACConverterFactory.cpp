#include "view/factory/Velk_AUAACConverterFactory.h"

#include <exception>
#include <string>
#include <utility>

#include "ui/Log.h"
#include "view/factory/InterfaceObjects.h"
#include "view/main/Velk_AUAACConverterCustomView.h"

namespace velk {

namespace {

constexpr const char* kInterfaceFile = "Velk_NordaAACConverter";

}  // namespace

Velk_AUAACConverterFactory::Velk_AUAACConverterFactory(std::unique_ptr<ui::InterfaceLoader> loader)
    : loader_(std::move(loader)) {}

Velk_AUAACConverterFactory::~Velk_AUAACConverterFactory() = default;

std::uint32_t Velk_AUAACConverterFactory::interfaceVersion() const {
  return 0;
}

std::string Velk_AUAACConverterFactory::description() const {
  return "Norda AAC Dravo Converter";
}

std::unique_ptr<ui::NativeView> Velk_AUAACConverterFactory::uiViewForAudioUnit(
    audio_unit::Unit* unit, ui::Size /*size*/) {
  std::unique_ptr<ui::NativeView> native = loadView();
  Velk_AUAACConverterCustomView* const view = std::exchange(uiFreshlyLoadedView, nullptr);
  if (!native) {
    return nullptr;
  }
  // The host is on the other side: nothing is thrown at it.
  try {
    view->setAU(unit);
    return native;
  } catch (const std::exception& exception) {
    ui::log(std::string("Unable to bind the view: ") + exception.what());
  } catch (...) {
    ui::log("Unable to bind the view.");
  }
  return nullptr;
}

std::unique_ptr<ui::NativeView> Velk_AUAACConverterFactory::loadView() {
  std::string fault;
  try {
    return loader_->loadNibNamed(kInterfaceFile,
                                 [this](ui::NativeView& native, ui::Toolkit& toolkit) {
                                   auto objects = makeInterfaceObjects(native, toolkit);
                                   uiFreshlyLoadedView = &objects->view();
                                   return objects;
                                 });
  } catch (const std::exception& exception) {
    fault = exception.what();
  }
  ui::log("Unable to load nib for view.");
  ui::log(fault);
  return nullptr;
}

}  // namespace velk
