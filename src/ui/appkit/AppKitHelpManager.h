#pragma once

#include "ui/HelpManager.h"

namespace ui {
class Bundle;
}

namespace ui::appkit {

/// The system's help manager. Where that knows no help books, the bundle's own page is opened.
class AppKitHelpManager final : public HelpManager {
 public:
  explicit AppKitHelpManager(const Bundle& bundle) : bundle_(bundle) {}
  void openHelpAnchor(const std::string& anchor, const std::string& book) override;

 private:
  const Bundle& bundle_;
};

}  // namespace ui::appkit
