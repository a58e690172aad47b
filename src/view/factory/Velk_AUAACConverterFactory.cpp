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

/// False, with the fault in the log, if the view cannot be bound.
bool bind(Velk_AUAACConverterCustomView& view, audio_unit::Unit* unit) {
  try {
    view.setAU(unit);
    return true;
  } catch (const std::exception& exception) {
    ui::log(std::string("Unable to bind the view: ") + exception.what());
  } catch (...) {
    ui::log("Unable to bind the view.");
  }
  return false;
}

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
  std::unique_ptr<ui::NativeView> bound;
  // Nothing may reach the host, not even what the log throws.
  ui::runGuarded([&] {
    if (unit == nullptr) {
      ui::log("Unable to bind the view: there is no converter unit.");
      return;
    }
    std::unique_ptr<ui::NativeView> loaded = loadView();
    Velk_AUAACConverterCustomView* const view = std::exchange(uiFreshlyLoadedView, nullptr);
    if (loaded && bind(*view, unit)) {
      bound = std::move(loaded);
    }
  });
  return bound;
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
  } catch (const ui::InterfaceError& error) {
    // Names the file itself.
    fault = error.what();
  } catch (const std::exception& exception) {
    fault = std::string(kInterfaceFile) + ": " + exception.what();
  } catch (...) {
    fault = std::string(kInterfaceFile) + ": exception of an unknown type";
  }
  ui::log("Unable to load nib for view.");
  ui::log(fault);
  return nullptr;
}

}  // namespace velk
