#include "skins/qt/TextStyle.h"

#include <QApplication>
#include <QFontDatabase>
#include <QFontMetricsF>
#include <QLabel>

namespace ui::qt {

namespace {

constexpr int kTextSize = 13;
constexpr int kSmallTextSize = 11;

bool hasTabularFigures(const QFont& font) {
  const QFontMetricsF metrics(font);
  const double width = metrics.horizontalAdvance(QLatin1Char('0'));
  for (char digit = '1'; digit <= '9'; ++digit) {
    if (metrics.horizontalAdvance(QLatin1Char(digit)) != width) {
      return false;
    }
  }
  return true;
}

}  // namespace

QFont viewFont() {
  QFont font = QApplication::font();
  font.setPixelSize(kTextSize);
  font.setBold(false);
  return font;
}

QFont tabularFont(const QFont& font) {
  QFont bold = font;
  bold.setBold(true);
  if (hasTabularFigures(font) && hasTabularFigures(bold)) {
    return font;
  }
  QFont fixed = QFontDatabase::systemFont(QFontDatabase::FixedFont);
  fixed.setPixelSize(font.pixelSize());
  fixed.setBold(font.bold());
  return fixed;
}

TextStyles::TextStyles() : plain_(viewFont()), tabular_(tabularFont(plain_)) {}

void TextStyles::apply(const QString& style, QLabel& label) const {
  const QStringList words = style.split(QLatin1Char(' '), Qt::SkipEmptyParts);
  if (words.isEmpty()) {
    return;
  }
  QFont font = words.contains(QLatin1String("tabular")) ? tabular_ : plain_;
  if (words.contains(QLatin1String("small"))) {
    font.setPixelSize(kSmallTextSize);
  }
  font.setBold(words.contains(QLatin1String("strong")));
  label.setFont(font);
  if (words.contains(QLatin1String("secondary"))) {
    // The role for quieter text; the skin's style chooses its colour.
    label.setForegroundRole(QPalette::PlaceholderText);
  }
}

}  // namespace ui::qt
