#pragma once

#include "ui/Export.h"

namespace ui {

class Bundle;
class HelpManager;
class Localization;
class RunLoop;
class Sheets;

/// The services that a skin gives to one view. Everything lives longer than the view's objects.
struct Toolkit {
  RunLoop& runLoop;
  Sheets& sheets;
  HelpManager& helpManager;
  const Bundle& bundle;
  const Localization& localization;
};

}  // namespace ui
