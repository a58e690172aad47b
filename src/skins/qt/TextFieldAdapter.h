#pragma once

#include <QLabel>
#include <QObject>
#include <QString>

#include "skins/qt/Adapter.h"

namespace ui {
class Localization;
}

namespace ui::qt {

/// A text that only code writes.
///
/// A text in any other colour than black is bold as well, so that colour is never all that tells.
/// On a background where a colour cannot be read it is shown in a lighter or darker tone.
/// For a label with an accessible name the text is read out after that name.
class TextFieldAdapter final : public QObject, public Adapter<TextField, QLabel> {
 public:
  /// Levels are shown through `format`, where "%@" stands for the number with one decimal.
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
