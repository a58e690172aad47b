#pragma once

#include <QCheckBox>

namespace ui::qt {

/// A view's check box. A class of its own so that `installAccessibleButtons` recognises it.
class CheckBox final : public QCheckBox {
 public:
  using QCheckBox::QCheckBox;
};

}  // namespace ui::qt
