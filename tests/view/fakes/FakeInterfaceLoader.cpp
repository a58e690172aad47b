#include "view/fakes/FakeInterfaceLoader.h"

#include <variant>

#include "view/fakes/FakeControls.h"
#include "view/fakes/FakeInterfaceFile.h"
#include "view/fakes/FakePopUpButton.h"
#include "view/fakes/FakeTabView.h"

namespace fakes {

namespace {

/// Makes the control for one outlet and fills it.
class OutletFiller {
 public:
  OutletFiller(FakeNativeView& view, CallLog& log, const ui::Localization& localization,
               std::string name)
      : view_(view), log_(log), localization_(localization), name_(std::move(name)) {}

  void operator()(ui::View** slot) const { fill<FakeView>(slot, log_, name_); }
  void operator()(ui::Button** slot) const { fill<FakeButton>(slot, log_, name_); }
  void operator()(ui::TextField** slot) const {
    fill<FakeTextField>(slot, log_, name_, localization_);
  }
  void operator()(ui::LevelIndicator** slot) const { fill<FakeLevelIndicator>(slot, log_, name_); }
  void operator()(ui::SegmentedControl** slot) const {
    fill<FakeSegmentedControl>(slot, log_, name_);
  }
  void operator()(ui::Slider** slot) const { fill<FakeSlider>(slot, log_, name_); }
  void operator()(ui::PopUpButton** slot) const { fill<FakePopUpButton>(slot, log_, name_); }
  void operator()(ui::TabView** slot) const { fill<FakeTabView>(slot, log_, name_); }
  void operator()(ui::Sheet** slot) const { fill<FakeSheet>(slot, name_); }

 private:
  template <class Fake, class Slot, class... Arguments>
  void fill(Slot** slot, Arguments&... arguments) const {
    auto control = std::make_unique<Fake>(arguments...);
    *slot = control.get();
    view_.addControl(name_, std::move(control));
  }

  FakeNativeView& view_;
  CallLog& log_;
  const ui::Localization& localization_;
  std::string name_;
};

}  // namespace

FakeInterfaceLoader::FakeInterfaceLoader(CallLog& log, FakeToolkit& toolkit)
    : log_(log), toolkit_(toolkit) {}

FakeInterfaceLoader::~FakeInterfaceLoader() = default;

std::unique_ptr<ui::NativeView> FakeInterfaceLoader::loadNibNamed(
    std::string_view name, const ui::MakeInterfaceObjects& makeObjects) {
  log_.add("loader.loadNibNamed ", name);
  if (fault) {
    throw ui::InterfaceError(*fault);
  }
  auto view = std::make_unique<FakeNativeView>(log_, toolkit_);
  view->setObjects(makeObjects(*view, toolkit_.services));
  for (const auto& object : view->objects().objects()) {
    for (const auto& outlet : object.connections->outlets()) {
      std::visit(OutletFiller(*view, log_, *toolkit_.localization, object.name + "." + outlet.name),
                 outlet.slot);
    }
  }
  layOutInterface(*view, log_);
  return view;
}

}  // namespace fakes
