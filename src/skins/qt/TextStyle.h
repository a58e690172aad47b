#pragma once

#include <QFont>
#include <QString>

class QLabel;

namespace ui::qt {

/// The system's font family at the size that the views are drawn for. The view's size is given in
/// points of its own, so its text may not follow a desktop's font size.
QFont viewFont();

/// A font whose digits are all equally wide, bold or not: the font itself or, if its are not, the
/// system's fixed one.
QFont tabularFont(const QFont& font);

/// The styles of the interface file, with their fonts made once for a whole form.
class TextStyles {
 public:
  TextStyles();
  /// `style` is any of the words "secondary", "small", "strong" and "tabular", separated by blanks.
  void apply(const QString& style, QLabel& label) const;

 private:
  QFont plain_;
  QFont tabular_;
};

}  // namespace ui::qt
