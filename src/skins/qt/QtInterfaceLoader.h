#pragma once

#include "skins/qt/Environment.h"
#include "ui/InterfaceFile.h"

namespace ui::qt {

/// Loads interface files of Qt's form format (`<name>.ui`) from the environment's resources.
class QtInterfaceLoader final : public InterfaceLoader {
 public:
  explicit QtInterfaceLoader(Environment environment);
  std::unique_ptr<NativeView> loadNibNamed(std::string_view name,
                                           const MakeInterfaceObjects& makeObjects) override;

 private:
  Environment environment_;
};

}  // namespace ui::qt
