#pragma once

#include <cstdint>
#include <memory>
#include <string>

#include "ui/CustomView.h"

#ifdef __APPLE__
struct OpaqueAudioComponentInstance;
namespace audio_unit {
using Unit = OpaqueAudioComponentInstance;
}
#else
namespace audio_unit {
class Unit;
}
#endif

/// What a host asks of a view bundle's factory. Main thread only.
class UI_EXPORT AUCocoaUIBase {
 public:
  virtual ~AUCocoaUIBase();
  /// Always 0.
  virtual std::uint32_t interfaceVersion() const = 0;
  virtual std::string description() const = 0;
  /// A view bound to the unit, or null with the reason in the log. The size is a hint that a view
  /// may ignore. The unit must live until the view leaves its parent or is destroyed.
  virtual std::unique_ptr<ui::NativeView> uiViewForAudioUnit(audio_unit::Unit* unit,
                                                             ui::Size size) = 0;
};

/// The bundle's only entry point: creates a factory by the name of its class; null for any other
/// name. The caller owns it. The toolkit's application object must exist, and the bundle must stay
/// loaded.
extern "C" {
using VelkInstantiateClassFunction = AUCocoaUIBase* (*)(const char* className);
}
inline constexpr const char* kVelkInstantiateClassSymbol = "VelkInstantiateClass";
