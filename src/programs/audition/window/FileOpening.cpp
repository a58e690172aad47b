#include "programs/audition/window/FileOpening.h"

#include <QFileDialog>
#include <QFileInfo>
#include <QMessageBox>
#include <utility>

#include "host/messages/Failure.h"
#include "programs/audition/window/ChannelDialog.h"
#include "programs/audition/window/Languages.h"

namespace host::audition {

FileOpening::FileOpening(MainWindow& window, ChannelChoice channels,
                         std::function<void(OpenedFile)> take)
    : window_(window), channels_(std::move(channels)), take_(std::move(take)) {
  connect(&window, &MainWindow::openRequested, this, &FileOpening::choose);
  connect(&window, &MainWindow::fileDropped, this, &FileOpening::open);
  connect(window.recentMenu(), &QMenu::aboutToShow, this, &FileOpening::fillRecentMenu);
  setSettings(nullptr);
}

void FileOpening::setSettings(QSettings* settings) {
  recent_ = settings != nullptr ? std::make_unique<RecentFiles>(*settings) : nullptr;
  window_.recentMenu()->menuAction()->setVisible(recent_ != nullptr);
}

void FileOpening::choose() {
  auto* const dialog = new QFileDialog(
      &window_, tr("Open Sound File"), {},
      tr("Sound files (*.wav *.wave *.aif *.aiff *.aifc *.flac *.ogg *.oga *.opus *.mp3 *.w64 "
         "*.rf64 *.caf *.au);;All files (*)"));
  dialog->setAttribute(Qt::WA_DeleteOnClose);
  dialog->setFileMode(QFileDialog::ExistingFile);
  connect(dialog, &QFileDialog::fileSelected, this, &FileOpening::open);
  dialog->open();
}

void FileOpening::open(const QString& path) {
  openChannels(path, channels_);
}

void FileOpening::openChannels(const QString& path, const ChannelChoice& channels) {
  // A new view would silently end the listening test.
  if (!enabled_) return;
  try {
    take_(openForPlaying(path.toStdString(), channels));
    if (recent_) recent_->add(path);
  } catch (const TooManyChannels& many) {
    askForChannels(path, many.channels());
  } catch (const Failure& failure) {
    showFailure(path, failure.message());
  }
}

void FileOpening::askForChannels(const QString& path, std::uint32_t channels) {
  auto* const dialog = new ChannelDialog(QFileInfo(path).fileName(), channels, &window_);
  dialog->setAttribute(Qt::WA_DeleteOnClose);
  connect(dialog, &QDialog::accepted, this,
          [this, dialog, path] { openChannels(path, dialog->choice()); });
  dialog->open();
}

void FileOpening::showFailure(const QString& path, const Message& why) {
  if (recent_ && !QFileInfo::exists(path)) recent_->remove(path);
  auto* const message =
      new QMessageBox(QMessageBox::Warning, tr("AAC Audition"), tr("The file cannot be played."),
                      QMessageBox::Ok, &window_);
  message->setInformativeText(inUsersLanguage(why));
  message->setTextFormat(Qt::PlainText);
  message->setAttribute(Qt::WA_DeleteOnClose);
  message->open();
}

void FileOpening::fillRecentMenu() {
  auto* const menu = window_.recentMenu();
  menu->clear();
  const auto paths = recent_ ? recent_->paths() : QStringList();
  for (const auto& path : paths) {
    auto name = QFileInfo(path).fileName();
    // A single ampersand would mark a shortcut key.
    auto* const action = menu->addAction(name.replace(QLatin1Char('&'), QStringLiteral("&&")), this,
                                         [this, path] { open(path); });
    action->setToolTip(path);
    action->setEnabled(enabled_);
  }
  if (paths.isEmpty()) menu->addAction(tr("No Files"))->setEnabled(false);
  menu->addSeparator();
  auto* const clear = menu->addAction(tr("&Clear List"), this, [this] { recent_->clear(); });
  clear->setEnabled(!paths.isEmpty());
}

}  // namespace host::audition
