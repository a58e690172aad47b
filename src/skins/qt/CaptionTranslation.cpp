#include "skins/qt/CaptionTranslation.h"

#include <QAbstractButton>
#include <QComboBox>
#include <QLabel>
#include <QTabWidget>

#include "ui/Captions.h"

namespace ui::qt {

namespace {

class Translator {
 public:
  explicit Translator(const Bundle& bundle) : bundle_(bundle) {}

  void translate(QWidget& widget) const {
    if (auto* label = qobject_cast<QLabel*>(&widget)) {
      label->setText(translated(label->text()));
    } else if (auto* button = qobject_cast<QAbstractButton*>(&widget)) {
      button->setText(translated(button->text()));
    } else if (auto* tabs = qobject_cast<QTabWidget*>(&widget)) {
      for (int index = 0; index < tabs->count(); ++index) {
        tabs->setTabText(index, translated(tabs->tabText(index)));
      }
    } else if (auto* box = qobject_cast<QComboBox*>(&widget)) {
      for (int index = 0; index < box->count(); ++index) {
        box->setItemText(index, translated(box->itemText(index)));
      }
    }
    // Setting even an empty text would send an event to every widget.
    if (!widget.windowTitle().isEmpty()) {
      widget.setWindowTitle(translated(widget.windowTitle()));
    }
    if (!widget.toolTip().isEmpty()) {
      widget.setToolTip(translated(widget.toolTip()));
    }
    if (!widget.accessibleName().isEmpty()) {
      widget.setAccessibleName(translatedParts(widget.accessibleName()));
    }
  }

 private:
  QString translated(const QString& key) const {
    return QString::fromStdString(caption(bundle_, key.toStdString()));
  }

  QString translatedParts(const QString& keys) const {
    return QString::fromStdString(captionParts(bundle_, keys.toStdString()));
  }

  const Bundle& bundle_;
};

}  // namespace

void translateCaptions(QWidget& widget, const Bundle& bundle) {
  const Translator translator(bundle);
  translator.translate(widget);
  for (QWidget* inner : widget.findChildren<QWidget*>()) {
    translator.translate(*inner);
  }
}

}  // namespace ui::qt
