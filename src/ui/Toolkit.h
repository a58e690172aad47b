#pragma once

#include <filesystem>
#include <string_view>

namespace ui {

class Bundle;
class HelpManager;
class Localization;
class RunLoop;
class Sheets;

/// The services that a skin gives to one view. All of them outlive the view's objects.
struct Toolkit {
  /// `ui::writeMacRoman` or the toolkit's equivalent.
  using WriteMacRoman = bool(const std::filesystem::path& file, std::string_view utf8);

  RunLoop& runLoop;
  Sheets& sheets;
  HelpManager& helpManager;
  const Bundle& bundle;
  const Localization& localization;
  WriteMacRoman& writeMacRoman;
};

}  // namespace ui
