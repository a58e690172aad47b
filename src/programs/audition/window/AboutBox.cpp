#include "programs/audition/window/AboutBox.h"

#include <QApplication>
#include <QMessageBox>

#include "host/messages/Version.h"

namespace host::audition {
namespace {

constexpr int kIconSize = 64;

}  // namespace

QMessageBox* makeAboutBox(QWidget* parent) {
  auto* const box =
      new QMessageBox(QMessageBox::NoIcon, QCoreApplication::translate("AboutBox", "About"),
                      QCoreApplication::translate("AboutBox", "AAC Audition %1").arg(kVersion),
                      QMessageBox::Ok, parent);
  box->setIconPixmap(QApplication::windowIcon().pixmap(kIconSize));
  box->setInformativeText(QCoreApplication::translate(
      "AboutBox",
      "Hear, measure and judge what AAC encoding does to a mix before it is delivered.\n\n"
      "MIT licence. Encodes with FDK AAC and decodes with FFmpeg’s libavcodec, which have licences "
      "of their own: a build with both is not to be passed on."));
  box->setTextFormat(Qt::PlainText);
  box->setAttribute(Qt::WA_DeleteOnClose);
  return box;
}

}  // namespace host::audition
