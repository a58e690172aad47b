#include "skins/qt/SavePanel.h"

#include <QFileDialog>
#include <QFileInfo>
#include <QPointer>
#include <QStandardPaths>

namespace ui::qt {

namespace {

/// Asks for a file of one type. Qt's own dialog takes whatever follows a dot for an extension, so
/// that "mix v1.2" would get none.
class TypedFileDialog final : public QFileDialog {
 public:
  TypedFileDialog(QWidget* parent, const QString& title, const QString& folder, const QString& type)
      : QFileDialog(parent, title, folder, "*." + type), ending_("." + type) {
    setAcceptMode(QFileDialog::AcceptSave);
    setDefaultSuffix(type);
  }

  void accept() override {
    const QString file = selectedFiles().value(0);
    if (!file.isEmpty() && !file.endsWith(ending_, Qt::CaseInsensitive) &&
        !QFileInfo(file).isDir()) {
      selectFile(file + ending_);
    }
    // This asks before it replaces an existing file.
    QFileDialog::accept();
  }

 private:
  QString ending_;
};

}  // namespace

std::optional<std::filesystem::path> runSavePanel(const SavePanelTexts& texts, QWidget& parent) {
  const QString type = QString::fromStdString(texts.allowedFileType);
  // The parent may be destroyed while the dialog runs, and the dialog with it.
  const QPointer<QFileDialog> dialog = new TypedFileDialog(
      &parent, QString::fromStdString(texts.title),
      QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation), type);
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
