#include "skins/qt/TextFieldAdapter.h"

#include <QEvent>
#include <utility>

#include "skins/qt/QtColors.h"
#include "ui/Bundle.h"
#include "ui/Localization.h"

namespace ui::qt {

namespace {

QColor toQColor(const Color& color) {
  return QColor::fromRgbF(static_cast<float>(color.red), static_cast<float>(color.green),
                          static_cast<float>(color.blue), static_cast<float>(color.alpha));
}

}  // namespace

TextFieldAdapter::TextFieldAdapter(QLabel& label, const Localization& localization,
                                   std::string format)
    : Adapter(label),
      localization_(localization),
      format_(std::move(format)),
      spokenName_(label.accessibleName()),
      strong_(label.font().bold()) {
  label.setTextFormat(Qt::PlainText);
  label.installEventFilter(this);
  show(label.text());
}

void TextFieldAdapter::setStringValue(const std::string& text) {
  show(QString::fromStdString(text));
}

void TextFieldAdapter::setIntegerValue(std::int64_t value) {
  setStringValue(localization_.plain(value));
}

void TextFieldAdapter::setFloatValue(float value) {
  setStringValue(formatted(format_, {localization_.oneDecimal(static_cast<double>(value))}));
}

void TextFieldAdapter::setTextColor(const Color& color) {
  if (color_ == color) {
    return;
  }
  color_ = color;
  QFont font = widget().font();
  font.setBold(strong_ || color_ != Color::black());
  widget().setFont(font);
  applyColor();
}

bool TextFieldAdapter::eventFilter(QObject* /*watched*/, QEvent* event) {
  if (event->type() == QEvent::PaletteChange && !applyingColor_) {
    applyColor();
  }
  return false;
}

void TextFieldAdapter::show(const QString& text) {
  widget().setText(text);
  if (!spokenName_.isEmpty()) {
    widget().setAccessibleName(text.isEmpty() ? spokenName_ : spokenName_ + ": " + text);
  }
}

void TextFieldAdapter::applyColor() {
  // Setting the palette below causes another PaletteChange event.
  applyingColor_ = true;
  // Black means the ordinary text colour: with an empty palette the label inherits its parent's.
  QPalette palette;
  if (color_ != Color::black()) {
    const QColor background = widget().palette().color(QPalette::Window);
    palette.setColor(QPalette::WindowText, readable(toQColor(color_), background, kTextContrast));
  }
  widget().setPalette(palette);
  applyingColor_ = false;
}

}  // namespace ui::qt
