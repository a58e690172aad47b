#pragma once

#include <filesystem>
#include <memory>

#include "audio_unit/AudioUnitTypes.h"
#include "ui/AUCocoaUIBase.h"

namespace host {

/// The bundle that makes the converter's view. It stays loaded until the process ends, as code of
/// it may be on the stack of anything that a view started.
class ViewBundle {
 public:
  /// Throws `Failure` when the bundle is missing or broken or has no factory of that class.
  explicit ViewBundle(const std::filesystem::path& bundle);
  ~ViewBundle();

  /// A view bound to the unit. Throws `Failure` when the factory gives none.
  std::unique_ptr<ui::NativeView> viewForUnit(AudioUnit unit);

 private:
  std::filesystem::path bundle_;
  std::unique_ptr<AUCocoaUIBase> factory_;
};

/// Where the bundle lies: beside the folder of the running program, or where it is installed with
/// it.
std::filesystem::path viewBundlePath();

}  // namespace host
