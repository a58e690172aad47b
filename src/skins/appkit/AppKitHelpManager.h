#pragma once

#include "ui/HelpManager.h"

namespace ui::appkit {

class FoundationBundle;

/// The system's help manager. Where that knows no help books, or the bundle has none, the bundle's
/// own page is opened.
class AppKitHelpManager final : public HelpManager {
 public:
  explicit AppKitHelpManager(const FoundationBundle& bundle) : bundle_(bundle) {}
  void openHelpAnchor(const std::string& anchor, const std::string& book) override;

 private:
  const FoundationBundle& bundle_;
};

}  // namespace ui::appkit
