#pragma once

#include "skins/appkit/AppKitHelpManager.h"
#include "skins/appkit/AppKitRunLoop.h"
#include "skins/appkit/AppKitSheets.h"
#include "skins/appkit/FoundationBundle.h"
#include "skins/appkit/FoundationLocalization.h"
#include "skins/appkit/LevelFormatter.h"
#include "ui/Toolkit.h"

namespace ui::appkit {

/// Formats levels according to the strings table and the user's locale.
class LocalizedLevelText final : public LevelText {
 public:
  LocalizedLevelText(const Bundle& bundle, const Localization& localization);
  std::string text(double level) const override;

 private:
  std::string format_;
  const Localization& localization_;
};

/// The services of one view.
class ViewServices {
 public:
  explicit ViewServices(NSBundle* bundle);

  Toolkit& toolkit() { return toolkit_; }
  AppKitSheets& sheets() { return sheets_; }
  const LevelText& levelText() const { return levelText_; }

 private:
  FoundationBundle bundle_;
  FoundationLocalization localization_;
  AppKitRunLoop runLoop_;
  AppKitSheets sheets_;
  AppKitHelpManager helpManager_;
  LocalizedLevelText levelText_;
  Toolkit toolkit_;
};

}  // namespace ui::appkit
