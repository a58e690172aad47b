#pragma once

#include <QCheckBox>

namespace ui::qt {

/// A check box of a view, which assistive tools work as a click does.
class CheckBox final : public QCheckBox {
 public:
  using QCheckBox::QCheckBox;
};

}  // namespace ui::qt
