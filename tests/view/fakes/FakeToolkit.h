#pragma once

#include <filesystem>
#include <memory>
#include <string>

#include "ui/Bundle.h"
#include "ui/Localization.h"
#include "ui/Toolkit.h"
#include "view/fakes/CallLog.h"
#include "view/fakes/FakeHelpManager.h"
#include "view/fakes/FakeRunLoop.h"
#include "view/fakes/FakeSheets.h"

namespace fakes {

/// The services of a skin, recorded in one log. Texts come from the project's strings table and
/// numbers from the real localization, English unless another is named.
class FakeToolkit {
 public:
  explicit FakeToolkit(CallLog& log);
  FakeToolkit(CallLog& log, const std::filesystem::path& resources, const std::string& language,
              const std::string& locale);

  FakeRunLoop runLoop;
  FakeSheets sheets;
  FakeHelpManager helpManager;
  ui::Bundle bundle;
  std::unique_ptr<ui::Localization> localization;
  ui::Toolkit services;
};

}  // namespace fakes
