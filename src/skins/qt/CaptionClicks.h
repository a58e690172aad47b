#pragma once

class QWidget;

namespace ui::qt {

/// Makes a click on a caption click the button that the caption's dynamic property `clicks` names.
/// An unknown name throws `InterfaceError`.
void connectCaptionClicks(QWidget& view);

}  // namespace ui::qt
