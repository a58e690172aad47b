#pragma once

#include <chrono>
#include <functional>
#include <memory>
#include <string>
#include <string_view>

#include "view/factory/InterfaceObjects.h"
#include "view/factory/Velk_AUAACConverterFactory.h"
#include "view/fakes/FakeConverter.h"
#include "view/fakes/FakeInterfaceLoader.h"
#include "view/fakes/FakeNativeView.h"
#include "view/fakes/FakeToolkit.h"
#include "view/fakes/Record.h"
#include "view/main/Velk_AUAACConverterCustomView.h"

namespace fakes {

/// A view that the real factory made over the fake toolkit, bound to a unit and in a window. The
/// unit must outlive it.
class BoundView {
 public:
  BoundView(Record& record, FakeConverter& unit);
  /// With texts and numbers of another language.
  BoundView(Record& record, FakeConverter& unit, const std::filesystem::path& resources,
            const std::string& language, const std::string& locale);

  velk::Velk_AUAACConverterCustomView& view() { return objects().view(); }
  velk::InterfaceObjects& objects() {
    return dynamic_cast<velk::InterfaceObjects&>(native->objects());
  }
  template <class Control>
  Control& control(std::string_view name) {
    return native->control<Control>(name);
  }
  void advance(std::chrono::milliseconds time) { toolkit.runLoop.advance(time); }

  FakeToolkit toolkit;
  /// Reset it to destroy the view.
  std::unique_ptr<FakeNativeView> native;

 private:
  void load(Record& record, FakeConverter& unit);
};

}  // namespace fakes
