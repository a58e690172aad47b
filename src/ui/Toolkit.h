#pragma once

#include <filesystem>
#include <string_view>

namespace ui {

class Bundle;
class HelpManager;
class Localization;
class RunLoop;
class Sheets;

/// The services that a skin gives to one view. Everything lives longer than the view's objects.
struct Toolkit {
  /// As `ui::writeMacRoman`, in the toolkit's way.
  using WriteMacRoman = bool(const std::filesystem::path& file, std::string_view utf8);

  RunLoop& runLoop;
  Sheets& sheets;
  HelpManager& helpManager;
  const Bundle& bundle;
  const Localization& localization;
  WriteMacRoman& writeMacRoman;
};

}  // namespace ui
