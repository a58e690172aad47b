#include "skins/qt/AdapterFactory.h"

#include <QVariant>

#include "skins/qt/ButtonAdapter.h"
#include "skins/qt/LampAdapter.h"
#include "skins/qt/PopUpButtonAdapter.h"
#include "skins/qt/SegmentedControlAdapter.h"
#include "skins/qt/SheetDialog.h"
#include "skins/qt/SliderAdapter.h"
#include "skins/qt/TabViewAdapter.h"
#include "skins/qt/TextFieldAdapter.h"
#include "ui/Bundle.h"
#include "ui/Captions.h"

namespace ui::qt {

namespace {

using PlainView = Adapter<View, QWidget>;

std::unique_ptr<Object> makeField(QLabel& label, const Bundle& bundle,
                                  const Localization& localization) {
  const QString format = label.property("format").toString();
  auto field = std::make_unique<TextFieldAdapter>(
      label, localization,
      bundle.localizedString(format.isEmpty() ? "%@" : format.toStdString(), kStringsTable));
  if (const QVariant level = label.property("floatValue"); level.isValid()) {
    field->setFloatValue(level.toFloat());
  }
  return field;
}

std::unique_ptr<Object> makePopUp(QComboBox& box) {
  auto popUp = std::make_unique<PopUpButtonAdapter>(box);
  const QStringList tags = box.property("itemTags").toStringList();
  for (int index = 0; index < popUp->numberOfItems() && index < tags.size(); ++index) {
    popUp->setTag(index, tags[index].toInt());
  }
  return popUp;
}

}  // namespace

std::unique_ptr<Object> makeAdapter(QWidget& widget, const Bundle& bundle,
                                    const Localization& localization) {
  if (auto* button = qobject_cast<QAbstractButton*>(&widget)) {
    return std::make_unique<ButtonAdapter>(*button);
  }
  if (auto* label = qobject_cast<QLabel*>(&widget)) {
    return makeField(*label, bundle, localization);
  }
  if (auto* box = qobject_cast<QComboBox*>(&widget)) {
    return makePopUp(*box);
  }
  if (auto* slider = qobject_cast<QSlider*>(&widget)) {
    return std::make_unique<SliderAdapter>(*slider);
  }
  if (auto* tabs = qobject_cast<QTabWidget*>(&widget)) {
    return std::make_unique<TabViewAdapter>(*tabs);
  }
  if (auto* pages = qobject_cast<QStackedWidget*>(&widget)) {
    return std::make_unique<TabViewAdapter>(*pages);
  }
  if (auto* lamp = dynamic_cast<Lamp*>(&widget)) {
    return std::make_unique<LampAdapter>(*lamp);
  }
  if (auto* sheet = dynamic_cast<SheetDialog*>(&widget)) {
    return std::make_unique<SheetAdapter>(*sheet);
  }
  if (!segmentsOf(widget).empty()) {
    return std::make_unique<SegmentedControlAdapter>(widget);
  }
  return std::make_unique<PlainView>(widget);
}

}  // namespace ui::qt
