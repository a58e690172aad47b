#include <dlfcn.h>

#include <filesystem>
#include <memory>
#include <string_view>

#include "skins/qt/Environment.h"
#include "skins/qt/QtInterfaceLoader.h"
#include "ui/AUCocoaUIBase.h"
#include "ui/Export.h"
#include "ui/Log.h"
#include "view/factory/Velk_AUAACConverterFactory.h"

namespace {

constexpr std::string_view kFactoryClass = "Velk_AUAACConverterFactory";

/// The folder "Resources" beside the module that this code was loaded from.
std::filesystem::path resources() {
  Dl_info info{};
  if (dladdr(reinterpret_cast<const void*>(&resources), &info) == 0 || info.dli_fname == nullptr) {
    return "Resources";
  }
  return std::filesystem::absolute(info.dli_fname).parent_path() / "Resources";
}

}  // namespace

extern "C" UI_EXPORT AUCocoaUIBase* VelkInstantiateClass(const char* className) {
  if (className == nullptr || className != kFactoryClass) {
    return nullptr;
  }
  AUCocoaUIBase* factory = nullptr;
  ui::runGuarded([&] {
    factory = std::make_unique<velk::Velk_AUAACConverterFactory>(
                  std::make_unique<ui::qt::QtInterfaceLoader>(ui::qt::userEnvironment(resources())))
                  .release();
  });
  return factory;
}
