#pragma once

#include <filesystem>
#include <memory>
#include <string>

#include "fakes/CallLog.h"
#include "fakes/FakeHelpManager.h"
#include "fakes/FakeRunLoop.h"
#include "fakes/FakeSheets.h"
#include "ui/Bundle.h"
#include "ui/Localization.h"
#include "ui/Toolkit.h"

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
