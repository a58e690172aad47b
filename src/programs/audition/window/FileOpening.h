#pragma once

#include <QObject>
#include <QSettings>
#include <functional>
#include <memory>

#include "host/files/OpenedFile.h"
#include "programs/audition/window/MainWindow.h"
#include "programs/audition/window/RecentFiles.h"

namespace host::audition {

/// Opens what the user asks for: from the dialog, from the recent files, or dropped on the window.
/// Shows why a file cannot be played, and asks which channels to play of a file with many.
class FileOpening : public QObject {
  Q_OBJECT

 public:
  /// `take` shows the file in the window; it may throw `Failure`. `channels` are those to play of
  /// files with more than two; empty to ask.
  FileOpening(MainWindow& window, ChannelChoice channels, std::function<void(OpenedFile)> take);

  /// Where the list of recent files is kept; null for no list. Not owned.
  void setSettings(QSettings* settings);
  /// Sets whether files can be opened.
  void setEnabled(bool enabled) { enabled_ = enabled; }

  void choose();
  void open(const QString& path);

 private:
  void openChannels(const QString& path, const ChannelChoice& channels);
  void askForChannels(const QString& path, std::uint32_t channels);
  void showFailure(const QString& path, const Message& why);
  void fillRecentMenu();

  MainWindow& window_;
  const ChannelChoice channels_;
  std::function<void(OpenedFile)> take_;
  std::unique_ptr<RecentFiles> recent_;
  bool enabled_ = true;
};

}  // namespace host::audition
