#pragma once

#include <QLabel>
#include <QObject>
#include <QString>

#include "skins/qt/Adapter.h"

namespace ui {
class Localization;
}

namespace ui::qt {

/// A text field that the user cannot edit.
///
/// Text in any colour but black is also bold, so that colour is never the only sign. A colour that
/// is hard to read on its background is made lighter or darker. If the label has an accessible
/// name, assistive tools read the text after it.
class TextFieldAdapter final : public QObject, public Adapter<TextField, QLabel> {
 public:
  /// `format` is used for levels; "%@" in it is replaced by the number with one decimal.
  TextFieldAdapter(QLabel& label, const Localization& localization, std::string format);

  void setStringValue(const std::string& text) override;
  void setIntegerValue(std::int64_t value) override;
  void setFloatValue(float value) override;
  void setTextColor(const Color& color) override;

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  void show(const QString& text);
  void applyColor();

  const Localization& localization_;
  std::string format_;
  QString spokenName_;
  Color color_ = Color::black();
  bool strong_;
  bool applyingColor_ = false;
};

}  // namespace ui::qt
