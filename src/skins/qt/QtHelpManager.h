#pragma once

#include <QUrl>
#include <functional>

#include "ui/HelpManager.h"

namespace ui {
class Bundle;
}

namespace ui::qt {

/// Opens the help page that travels with the bundle, in the bundle's language if there is one.
class QtHelpManager final : public HelpManager {
 public:
  /// `openUrl` shows a document to the user; null for the desktop's own way.
  QtHelpManager(const Bundle& bundle, std::function<bool(const QUrl&)> openUrl);
  /// The page is "help/index.<language>.html", else "help/index.html". There is one book only.
  void openHelpAnchor(const std::string& anchor, const std::string& book) override;

 private:
  const Bundle& bundle_;
  std::function<bool(const QUrl&)> openUrl_;
};

}  // namespace ui::qt
