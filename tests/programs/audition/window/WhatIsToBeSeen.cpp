#include "WhatIsToBeSeen.h"

#include <QAccessible>
#include <QAction>
#include <QApplication>
#include <QComboBox>
#include <QDebug>
#include <QMetaProperty>
#include <QPainter>
#include <QRegularExpression>
#include <QWidget>
#include <algorithm>

namespace {

using Lines = std::vector<std::string>;

std::string nameOf(const QObject& object) {
  return std::string(object.metaObject()->className()) + " " + object.objectName().toStdString();
}

std::string asText(const QVariant& value) {
  QString text;
  QDebug(&text).noquote() << value;
  // A counter of the process; the picture itself is compared elsewhere.
  static const QRegularExpression cacheKey(QStringLiteral("cacheKey=0x[0-9a-f]+"));
  return text.remove(cacheKey).toStdString();
}

/// Whether the value is an object, which would print as its address.
bool isObject(const QMetaType& type) {
  return type.flags().testAnyFlags(QMetaType::IsPointer | QMetaType::PointerToQObject |
                                   QMetaType::PointerToGadget);
}

void addProperties(const QObject& object, Lines& lines) {
  const auto& meta = *object.metaObject();
  for (int i = 0; i < meta.propertyCount(); ++i) {
    const auto property = meta.property(i);
    if (isObject(property.metaType())) continue;
    lines.push_back(nameOf(object) + ": " + property.name() + " = " +
                    asText(property.read(&object)));
  }
  for (const auto& name : object.dynamicPropertyNames()) {
    const auto value = object.property(name);
    if (isObject(value.metaType())) continue;
    lines.push_back(nameOf(object) + ": " + name.toStdString() + " = " + asText(value));
  }
}

void addAccessibleTexts(QObject& object, Lines& lines) {
  auto* const accessible = QAccessible::queryAccessibleInterface(&object);
  if (accessible == nullptr) return;
  for (const auto text :
       {QAccessible::Name, QAccessible::Description, QAccessible::Value, QAccessible::Help,
        QAccessible::Accelerator, QAccessible::DebugDescription}) {
    lines.push_back(nameOf(object) + ": accessible " + std::to_string(text) + " = " +
                    accessible->text(text).toStdString());
  }
  const auto state = accessible->state();
  lines.push_back(nameOf(object) + ": accessible state = " + std::to_string(state.checked) +
                  std::to_string(state.pressed) + std::to_string(state.selected) +
                  std::to_string(state.disabled) + std::to_string(state.invisible));
}

void addItems(const QComboBox& box, Lines& lines) {
  for (int item = 0; item < box.count(); ++item) {
    for (const auto role : {Qt::DisplayRole, Qt::ToolTipRole, Qt::StatusTipRole, Qt::WhatsThisRole,
                            Qt::AccessibleTextRole, Qt::AccessibleDescriptionRole}) {
      lines.push_back(nameOf(box) + ": item " + std::to_string(item) + " = " +
                      asText(box.itemData(item, role)));
    }
  }
}

bool isIn(const QObject* object, const QWidget* ancestor) {
  while (object != nullptr && object != ancestor) object = object->parent();
  return ancestor != nullptr && object == ancestor;
}

QImage pictureOf(QWidget& window, const QWidget* except) {
  auto picture = window.grab();
  if (except != nullptr && except->window() == &window) {
    QPainter(&picture).fillRect(QRect(except->mapTo(&window, QPoint()), except->size()), Qt::black);
  }
  return picture.toImage();
}

}  // namespace

WhatIsToBeSeen whatIsToBeSeen(const QWidget* except) {
  WhatIsToBeSeen seen;
  for (auto* const root : QApplication::topLevelWidgets()) {
    // Menus and sheets are listed with the window that they belong to, in order of creation.
    if (root->parent() != nullptr) continue;
    auto objects = root->findChildren<QObject*>();
    objects.prepend(root);
    for (auto* const object : objects) {
      auto* const widget = qobject_cast<QWidget*>(object);
      const bool isReadable = widget != nullptr || qobject_cast<QAction*>(object) != nullptr;
      if (!isReadable || isIn(object, except)) continue;
      addProperties(*object, seen.lines);
      addAccessibleTexts(*object, seen.lines);
      if (const auto* const box = qobject_cast<QComboBox*>(object)) addItems(*box, seen.lines);
      if (widget != nullptr && widget->isWindow() && widget->isVisible()) {
        seen.pictures.push_back(pictureOf(*widget, except));
      }
    }
  }
  return seen;
}

std::string differencesBetween(const WhatIsToBeSeen& one, const WhatIsToBeSeen& other) {
  std::string differences;
  for (std::size_t i = 0; i < std::max(one.lines.size(), other.lines.size()); ++i) {
    const auto left = i < one.lines.size() ? one.lines[i] : "nothing";
    const auto right = i < other.lines.size() ? other.lines[i] : "nothing";
    if (left != right) differences.append(left).append(" | ").append(right).append("\n");
  }
  if (one.pictures != other.pictures) differences += "the pictures\n";
  return differences;
}
