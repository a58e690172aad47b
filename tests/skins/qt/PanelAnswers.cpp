#include "skins/qt/PanelAnswers.h"

#include <QApplication>
#include <QFileDialog>
#include <QLineEdit>
#include <QTest>

namespace qt_test {

std::optional<std::string> answerSavePanel(const std::optional<std::filesystem::path>& file) {
  const auto* const panel = qobject_cast<QFileDialog*>(QApplication::activeModalWidget());
  if (panel == nullptr) {
    return std::nullopt;
  }
  auto* const name = panel->findChild<QLineEdit*>();
  std::string proposed = name->text().toStdString();
  if (file) {
    name->setText(QString::fromStdString(file->string()));
    QTest::keyClick(name, Qt::Key_Return);
  } else {
    QTest::keyClick(name, Qt::Key_Escape);
  }
  return proposed;
}

}  // namespace qt_test
