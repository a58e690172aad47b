#pragma once

class QWidget;

namespace ui::qt {

/// Lets a caption stand for the button that its dynamic property `clicks` names: a click on either
/// is a click on the button. An unknown name throws `InterfaceError`.
void connectCaptionClicks(QWidget& view);

}  // namespace ui::qt
