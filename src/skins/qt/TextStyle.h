#pragma once

#include <QFont>
#include <QString>

class QLabel;

namespace ui::qt {

/// The system's font family at the size for which the views are drawn. A view has a fixed size, so
/// its text must not follow the desktop's font size.
QFont viewFont();

/// A font whose digits all have the same width, bold or not: the font itself or, if its digits
/// differ, the system's fixed-width font.
QFont tabularFont(const QFont& font);

/// The text styles of an interface file. Make one for a whole form: it caches the fonts.
class TextStyles {
 public:
  TextStyles();
  /// `style` is any of "secondary", "small", "strong" and "tabular", separated by spaces. Without
  /// any the label keeps its font.
  void apply(const QString& style, QLabel& label) const;

 private:
  QFont plain_;
  QFont tabular_;
};

}  // namespace ui::qt
