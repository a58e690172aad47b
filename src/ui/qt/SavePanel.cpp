#include "ui/qt/SavePanel.h"

#include <QFileDialog>
#include <QPointer>
#include <QStandardPaths>

namespace ui::qt {

std::optional<std::filesystem::path> runSavePanel(const SavePanelTexts& texts, QWidget& parent) {
  const QString type = QString::fromStdString(texts.allowedFileType);
  // The parent may be destroyed while the dialog runs, and takes the dialog with it.
  const QPointer<QFileDialog> dialog = new QFileDialog(
      &parent, QString::fromStdString(texts.title),
      QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation), "*." + type);
  dialog->setAcceptMode(QFileDialog::AcceptSave);
  dialog->setDefaultSuffix(type);
  dialog->selectFile(QString::fromStdString(texts.proposedName));

  std::optional<std::filesystem::path> place;
  if (dialog->exec() == QDialog::Accepted && dialog != nullptr &&
      !dialog->selectedFiles().isEmpty()) {
    place = dialog->selectedFiles().constFirst().toStdString();
    if (!place->has_extension()) {
      *place += "." + texts.allowedFileType;
    }
  }
  delete dialog;
  return place;
}

}  // namespace ui::qt
