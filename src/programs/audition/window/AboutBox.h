#pragma once

class QMessageBox;
class QWidget;

namespace host::audition {

/// Makes a box that says what this program is and whose codecs it uses. It deletes itself when
/// closed.
QMessageBox* makeAboutBox(QWidget* parent);

}  // namespace host::audition
