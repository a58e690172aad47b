#pragma once

#include <QPushButton>

namespace ui::qt {

/// A push button that, where room is scarce, gives up the space around its title but never a part
/// of the title.
class PushButton final : public QPushButton {
 public:
  explicit PushButton(QWidget* parent = nullptr);
  QSize minimumSizeHint() const override;
};

}  // namespace ui::qt
