#pragma once

#include "skins/appkit/Adapter.h"

namespace ui {
class Localization;
}

namespace ui::appkit {

/// A text that only code writes.
///
/// A text in any other colour than black is bold as well, so that colour is never all that tells.
/// On a background where a colour cannot be read it is shown in a lighter or darker tone.
class TextFieldAdapter final : public Adapter<TextField, NSTextField> {
 public:
  TextFieldAdapter(NSTextField* field, const Localization& localization);

  void setStringValue(const std::string& text) override;
  void setIntegerValue(std::int64_t value) override;
  void setFloatValue(float value) override;
  void setTextColor(const Color& color) override;

 private:
  const Localization& localization_;
  bool strong_;
};

}  // namespace ui::appkit
