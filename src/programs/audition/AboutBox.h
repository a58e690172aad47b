#pragma once

class QMessageBox;
class QWidget;

namespace host::audition {

/// Tells what this program is and on whose work it stands. Destroys itself when it is closed.
QMessageBox* aboutBox(QWidget* parent);

}  // namespace host::audition
