#pragma once

#include <QUrl>
#include <functional>

#include "ui/HelpManager.h"

namespace ui {
class Bundle;
}

namespace ui::qt {

/// Opens the bundle's help page, in the bundle's language if there is one.
class QtHelpManager final : public HelpManager {
 public:
  /// `openUrl` shows a document to the user; null for the desktop's own way.
  QtHelpManager(const Bundle& bundle, std::function<bool(const QUrl&)> openUrl);
  /// Opens "help/index.<language>.html" or, failing that, "help/index.html", and logs a failure.
  /// There is only one book.
  void openHelpAnchor(const std::string& anchor, const std::string& book) override;

 private:
  const Bundle& bundle_;
  std::function<bool(const QUrl&)> openUrl_;
};

}  // namespace ui::qt
