#pragma once

#include <QSettings>
#include <QStringList>

namespace host::audition {

/// The files that were opened last, the newest first, kept for the user.
class RecentFiles {
 public:
  static constexpr int kMost = 10;

  explicit RecentFiles(QSettings& settings) : settings_(settings) {}

  /// As they were opened, whether they are still there or not.
  QStringList paths() const;
  void add(const QString& path);
  void remove(const QString& path);
  void clear();

 private:
  QSettings& settings_;
};

}  // namespace host::audition
