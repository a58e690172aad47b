#pragma once

#include "skins/appkit/Adapter.h"

namespace ui::appkit {

/// A push button, on/off button, check box, disclosure triangle or help button.
class ButtonAdapter final : public Adapter<Button, NSButton> {
 public:
  using Adapter::Adapter;

  int state() const override;
  void setState(int state) override;
  void performClick() override;
  int tag() const override;
};

}  // namespace ui::appkit
