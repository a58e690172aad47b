#include "skins/qt/QtInterfaceLoader.h"

#include <string>
#include <utility>

#include "skins/qt/AudioUnitPump.h"
#include "skins/qt/CaptionTranslation.h"
#include "skins/qt/Form.h"
#include "skins/qt/ViewServices.h"
#include "skins/qt/Wiring.h"

namespace ui::qt {

namespace {

std::unique_ptr<QtView> load(const std::filesystem::path& file, const Environment& environment,
                             const MakeInterfaceObjects& makeObjects) {
  Form form = loadForm(file);
  QtView& view = *form.view;
  auto services = std::make_unique<ViewServices>(environment, view, [&view] {
    view.window()->activateWindow();
    view.makeFirstResponder();
  });
  Toolkit& toolkit = services->toolkit();
  view.setServices(std::move(services));
  view.applyFrameSize(
      {static_cast<double>(form.drawnSize.width()), static_cast<double>(form.drawnSize.height())});

  translateCaptions(view, toolkit.bundle);
  std::unique_ptr<InterfaceObjects> objects = makeObjects(view, toolkit);
  wire(view, *objects, toolkit);
  // The view takes the objects only now that all their outlets are filled.
  view.setObjects(std::move(objects));
  view.watchControls();
  return std::move(form.view);
}

}  // namespace

QtInterfaceLoader::QtInterfaceLoader(Environment environment)
    : environment_(std::move(environment)) {}

std::unique_ptr<NativeView> QtInterfaceLoader::loadNibNamed(
    std::string_view name, const MakeInterfaceObjects& makeObjects) {
  const std::filesystem::path file = environment_.resources / (std::string(name) + ".ui");
  // Whoever provides the run loop delivers audio units' events, too.
  if (!environment_.makeRunLoop) {
    pumpAudioUnitEvents();
  }
  try {
    return load(file, environment_, makeObjects);
  } catch (const InterfaceError& error) {
    throw InterfaceError(file.string() + ": " + error.what());
  }
}

}  // namespace ui::qt
