#pragma once

#include "skins/appkit/Adapter.h"

namespace ui {
class Localization;
}

namespace ui::appkit {

/// A text field that the user cannot edit.
///
/// Text in any colour but black is also bold, so that colour is never the only sign. A colour that
/// is hard to read on its background is made lighter or darker.
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
