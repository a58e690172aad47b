#pragma once

#include "ui/HelpManager.h"

namespace ui::appkit {

class FoundationBundle;

/// Opens help through the system's help manager. If that does not support help books, or the bundle
/// has none, it opens the bundle's own page.
class AppKitHelpManager final : public HelpManager {
 public:
  explicit AppKitHelpManager(const FoundationBundle& bundle) : bundle_(bundle) {}
  void openHelpAnchor(const std::string& anchor, const std::string& book) override;

 private:
  const FoundationBundle& bundle_;
};

}  // namespace ui::appkit
