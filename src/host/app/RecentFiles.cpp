#include "host/app/RecentFiles.h"

#include <QFileInfo>

namespace host::app {
namespace {

const QString key = QStringLiteral("recentFiles");

}  // namespace

QStringList RecentFiles::paths() const {
  return settings_.value(key).toStringList().mid(0, most);
}

void RecentFiles::add(const QString& path) {
  const auto whole = QFileInfo(path).absoluteFilePath();
  auto all = paths();
  all.removeAll(whole);
  all.prepend(whole);
  settings_.setValue(key, all.mid(0, most));
}

void RecentFiles::remove(const QString& path) {
  auto all = paths();
  all.removeAll(QFileInfo(path).absoluteFilePath());
  settings_.setValue(key, all);
}

void RecentFiles::clear() {
  settings_.remove(key);
}

}  // namespace host::app
