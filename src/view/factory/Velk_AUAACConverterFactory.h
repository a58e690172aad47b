#pragma once

#include <memory>

#include "ui/AUCocoaUIBase.h"
#include "ui/InterfaceFile.h"

namespace velk {

class Velk_AUAACConverterCustomView;

/// The bundle's entry class: loads the interface file and hands over a view bound to a unit.
class Velk_AUAACConverterFactory final : public AUCocoaUIBase {
 public:
  explicit Velk_AUAACConverterFactory(std::unique_ptr<ui::InterfaceLoader> loader);
  ~Velk_AUAACConverterFactory() override;

  std::uint32_t interfaceVersion() const override;
  std::string description() const override;
  std::unique_ptr<ui::NativeView> uiViewForAudioUnit(audio_unit::Unit* unit,
                                                     ui::Size size) override;

 private:
  /// Null, with the fault in the log, if the interface file cannot be loaded.
  std::unique_ptr<ui::NativeView> loadView();

  std::unique_ptr<ui::InterfaceLoader> loader_;
  /// Set only from the making of a view until the view is bound.
  Velk_AUAACConverterCustomView* uiFreshlyLoadedView = nullptr;
};

}  // namespace velk
