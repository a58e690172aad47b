#include "view/fakes/BoundView.h"

#include <stdexcept>

namespace fakes {

BoundView::BoundView(Record& record, FakeConverter& unit) : toolkit(record.calls) {
  load(record, unit);
}

BoundView::BoundView(Record& record, FakeConverter& unit, const std::filesystem::path& resources,
                     const std::string& language, const std::string& locale)
    : toolkit(record.calls, resources, language, locale) {
  load(record, unit);
}

void BoundView::load(Record& record, FakeConverter& unit) {
  velk::Velk_AUAACConverterFactory factory(
      std::make_unique<FakeInterfaceLoader>(record.calls, toolkit));
  auto loaded = factory.uiViewForAudioUnit(&unit, {0, 0});
  if (!loaded) {
    throw std::runtime_error("the factory gave no view");
  }
  native.reset(&dynamic_cast<FakeNativeView&>(*loaded.release()));
  native->moveToSuperview(true);
}

}  // namespace fakes
