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

/// Applies a style of the interface file: any of the words "secondary", "small", "strong" and
/// "tabular", separated by blanks.
void applyTextStyle(QLabel& label, const QString& style);

/// Whether a widget's text is drawn in the quieter colour of captions.
bool isSecondary(const QLabel& label);

}  // namespace ui::qt
