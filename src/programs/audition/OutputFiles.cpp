#include "programs/audition/OutputFiles.h"

#include <QPixmap>
#include <QWidget>

#include "host/messages/Failure.h"

namespace host::audition {
namespace {

std::unique_ptr<AtomicFile> claim(const std::optional<std::filesystem::path>& path) {
  return path ? std::make_unique<AtomicFile>(*path) : nullptr;
}

}  // namespace

OutputFiles claimOutputFiles(const AuditionOptions& options) {
  return {claim(options.screenshot), claim(options.record)};
}

void writeScreenshot(QWidget& window, AtomicFile& file) {
  const auto picture = window.grab();
  if (!picture.save(QString::fromStdString(file.temporaryPath().string()), "PNG")) {
    throw Failure(Message::words("cannot write '%1': the disk may be full; nothing was kept"),
                  {file.path().string()});
  }
  file.commit();
}

}  // namespace host::audition
