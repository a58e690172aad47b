#pragma once

#include <QPushButton>

namespace ui::qt {

/// A push button that can shrink to little more than its title, but never cuts the title off.
class PushButton final : public QPushButton {
 public:
  explicit PushButton(QWidget* parent = nullptr);
  QSize minimumSizeHint() const override;
};

}  // namespace ui::qt
