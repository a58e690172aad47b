#include "programs/audition/window/RecentFiles.h"

#include <QFileInfo>

namespace host::audition {
namespace {

const QString kKey = QStringLiteral("recentFiles");

}  // namespace

QStringList RecentFiles::paths() const {
  return settings_.value(kKey).toStringList().mid(0, kMost);
}

void RecentFiles::add(const QString& path) {
  const auto whole = QFileInfo(path).absoluteFilePath();
  auto all = paths();
  all.removeAll(whole);
  all.prepend(whole);
  settings_.setValue(kKey, all.mid(0, kMost));
}

void RecentFiles::remove(const QString& path) {
  auto all = paths();
  all.removeAll(QFileInfo(path).absoluteFilePath());
  settings_.setValue(kKey, all);
}

void RecentFiles::clear() {
  settings_.remove(kKey);
}

}  // namespace host::audition
