#include "skins/qt/QtSheets.h"

#include <QLayout>
#include <QMargins>
#include <QMessageBox>
#include <QPushButton>
#include <utility>

#include "skins/qt/SavePanel.h"
#include "skins/qt/SheetDialog.h"
#include "ui/Log.h"

namespace ui::qt {

namespace {

/// Narrow on the left, because an alert without an icon already indents its text.
constexpr QMargins kAlertMargins(3, 24, 24, 24);

class AlertWindow final : public Window {};

SheetDialog& dialogOf(Sheet& sheet) {
  return dynamic_cast<SheetAdapter&>(sheet).dialog();
}

}  // namespace

QtSheets::QtSheets(QWidget& view, std::function<void()> didClose)
    : view_(view), didClose_(std::move(didClose)) {}

QtSheets::~QtSheets() {
  cancelAll();
}

void QtSheets::cancelAll() {
  for (const auto& [sheet, didEnd] : std::exchange(open_, {})) {
    dialogOf(*sheet).hide();
  }
  delete alert_;
}

void QtSheets::beginSheet(Sheet& sheet, View& /*control*/, std::function<void(int code)> didEnd) {
  open_[&sheet] = std::move(didEnd);
  dialogOf(sheet).showAsSheet();
}

void QtSheets::endSheet(Sheet& sheet, int code) {
  const auto found = open_.find(&sheet);
  if (found == open_.end()) {
    return;
  }
  const std::function<void(int)> didEnd = std::move(found->second);
  open_.erase(found);
  if (didEnd) {
    didEnd(code);
  }
}

void QtSheets::orderOut(Sheet& sheet) {
  dialogOf(sheet).hide();
  didClose_();
}

void QtSheets::beginAlertSheet(const AlertTexts& texts, View& /*control*/,
                               std::function<void(Window& alert, int code)> didEnd) {
  delete alert_;
  alert_ = new QMessageBox(&view_);
  alert_->setWindowModality(Qt::WindowModal);
  alert_->setTextFormat(Qt::PlainText);
  alert_->setWindowTitle(QString::fromStdString(texts.title));
  alert_->setText(QString::fromStdString(texts.message));
  QPushButton* normal =
      alert_->addButton(QString::fromStdString(texts.defaultButton), QMessageBox::AcceptRole);
  QPushButton* alternate = alert_->addButton(QString::fromStdString(texts.alternateButton),
                                             QMessageBox::DestructiveRole);
  alert_->setDefaultButton(normal);
  alert_->setEscapeButton(normal);
  alert_->setFont(view_.font());
  alert_->layout()->setContentsMargins(kAlertMargins);
  for (QWidget* part : alert_->findChildren<QWidget*>()) {
    part->setStyle(view_.style());
  }
  QObject::connect(
      alert_, &QMessageBox::finished,
      [this, box = alert_.data(), alternate, didEnd = std::move(didEnd)] {
        const bool chosen = box->clickedButton() == alternate;
        // The answer may destroy the view.
        const QPointer<QWidget> view = &view_;
        box->deleteLater();
        alert_.clear();
        AlertWindow window;
        runGuarded([&] { didEnd(window, chosen ? kAlertAlternateReturn : kAlertDefaultReturn); });
        if (view != nullptr) {
          didClose_();
        }
      });
  alert_->open();
}

std::optional<std::filesystem::path> QtSheets::runSavePanel(const SavePanelTexts& texts,
                                                            View& /*control*/) {
  QWidget* over = &view_;
  for (const auto& [sheet, didEnd] : open_) {
    over = &dialogOf(*sheet);
  }
  return qt::runSavePanel(texts, *over);
}

}  // namespace ui::qt
