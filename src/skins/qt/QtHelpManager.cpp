#include "skins/qt/QtHelpManager.h"

#include <QDesktopServices>
#include <filesystem>
#include <utility>

#include "ui/HelpPage.h"
#include "ui/Log.h"

namespace ui::qt {

QtHelpManager::QtHelpManager(const Bundle& bundle, std::function<bool(const QUrl&)> openUrl)
    : bundle_(bundle), openUrl_(openUrl ? std::move(openUrl) : QDesktopServices::openUrl) {}

void QtHelpManager::openHelpAnchor(const std::string& anchor, const std::string& /*book*/) {
  const std::filesystem::path page = helpPage(bundle_);
  QUrl url = QUrl::fromLocalFile(QString::fromStdString(page.string()));
  url.setFragment(QString::fromStdString(anchor));
  if (!openUrl_(url)) {
    log("Unable to open help page " + page.string());
  }
}

}  // namespace ui::qt
