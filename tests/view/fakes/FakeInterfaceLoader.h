#pragma once

#include <memory>
#include <optional>
#include <string>
#include <string_view>

#include "ui/InterfaceFile.h"
#include "view/fakes/CallLog.h"
#include "view/fakes/FakeNativeView.h"
#include "view/fakes/FakeToolkit.h"

namespace fakes {

/// Makes a control of the right type for every outlet that the objects declare, and connects and
/// fills them the way an interface file does (FakeInterfaceFile.cpp).
class FakeInterfaceLoader final : public ui::InterfaceLoader {
 public:
  FakeInterfaceLoader(CallLog& log, FakeToolkit& toolkit);
  ~FakeInterfaceLoader() override;

  /// While set, loading fails with this message.
  std::optional<std::string> fault;

  std::unique_ptr<ui::NativeView> loadNibNamed(
      std::string_view name, const ui::MakeInterfaceObjects& makeObjects) override;

 private:
  CallLog& log_;
  FakeToolkit& toolkit_;
};

}  // namespace fakes
