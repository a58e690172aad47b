#pragma once

#include <QObject>
#include <QSettings>
#include <functional>
#include <memory>

#include "host/files/OpenedFile.h"
#include "programs/audition/MainWindow.h"
#include "programs/audition/RecentFiles.h"

namespace host::audition {

/// Opens what the user asks for: by dialog, from the files opened last, or dropped on the window.
/// Says what is wrong with a file, and asks which channels to take of one with many.
class FileOpening : public QObject {
  Q_OBJECT

 public:
  /// `take` shows the file in the window; it may throw `Failure`. `channels` are those to take of
  /// files with more than two, if that was said.
  FileOpening(MainWindow& window, ChannelChoice channels, std::function<void(OpenedFile)> take);

  /// Where the files opened last are kept; without it there are none. Not owned.
  void setSettings(QSettings* settings);
  /// Whether anything is opened.
  void setEnabled(bool enabled) { enabled_ = enabled; }

  void choose();
  void open(const QString& path);

 private:
  void openChannels(const QString& path, const ChannelChoice& channels);
  void askForChannels(const QString& path, std::uint32_t channels);
  void complainOf(const QString& path, const Message& why);
  void fillRecentMenu();

  MainWindow& window_;
  const ChannelChoice channels_;
  std::function<void(OpenedFile)> take_;
  std::unique_ptr<RecentFiles> recent_;
  bool enabled_ = true;
};

}  // namespace host::audition
