#pragma once

#include <QSettings>
#include <QStringList>

namespace host::audition {

/// The list of recently opened files, newest first, kept in the user's settings.
class RecentFiles {
 public:
  static constexpr int kMost = 10;

  explicit RecentFiles(QSettings& settings) : settings_(settings) {}

  /// The paths as they were opened, whether or not the files still exist.
  QStringList paths() const;
  void add(const QString& path);
  void remove(const QString& path);
  void clear();

 private:
  QSettings& settings_;
};

}  // namespace host::audition
