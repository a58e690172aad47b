#include "skins/qt/Form.h"

#include <QBuffer>
#include <QComboBox>
#include <QFile>
#include <QLabel>
#include <QStackedWidget>
#include <QTabBar>
#include <QTabWidget>
#include <QUiLoader>
#include <QVariant>
#include <charconv>
#include <string>
#include <string_view>
#include <system_error>

#include "skins/qt/AccessibleButton.h"
#include "skins/qt/CaptionClicks.h"
#include "skins/qt/CheckBox.h"
#include "skins/qt/FrameOrigin.h"
#include "skins/qt/Lamp.h"
#include "skins/qt/PopUpBox.h"
#include "skins/qt/PushButton.h"
#include "skins/qt/SheetDialog.h"
#include "skins/qt/SkinStyle.h"
#include "skins/qt/TextStyle.h"
#include "ui/InterfaceFile.h"

namespace ui::qt {

namespace {

constexpr const char* kSeparatorTitle = "-";

/// Makes the skin's own widget classes as well as Qt's. Sets the skin's style while there is no
/// layout yet that would have to be recomputed.
class WidgetFactory final : public QUiLoader {
 public:
  explicit WidgetFactory(QStyle& style) : style_(style) {}

  QWidget* createWidget(const QString& className, QWidget* parent, const QString& name) override {
    QWidget* widget = nullptr;
    if (className == QLatin1String("CustomView")) {
      widget = new QtView(parent);
    } else if (className == QLatin1String("Sheet")) {
      widget = new SheetDialog(parent);
    } else if (className == QLatin1String("Lamp")) {
      widget = new Lamp(parent);
    } else if (className == QLatin1String("QPushButton")) {
      widget = new PushButton(parent);
    } else if (className == QLatin1String("QCheckBox")) {
      widget = new CheckBox(parent);
    } else if (className == QLatin1String("QComboBox")) {
      widget = new PopUpBox(parent);
    } else {
      widget = QUiLoader::createWidget(className, parent, name);
    }
    if (widget == nullptr) {
      unknownClass_ = className.toStdString();
      return nullptr;
    }
    widget->setObjectName(name);
    widget->setStyle(&style_);
    return widget;
  }

  /// The last class that could not be made; empty if there was none.
  const std::string& unknownClass() const { return unknownClass_; }

 private:
  QStyle& style_;
  std::string unknownClass_;
};

/// Qt's grid layout accepts any number and, if it is negative, writes out of bounds.
void requireValidGridPlace(std::string_view item) {
  constexpr int kMaxPlace = 1000;
  for (const std::string_view attribute : {"row=\"", "column=\"", "rowspan=\"", "colspan=\""}) {
    const std::size_t at = item.find(attribute);
    if (at == std::string_view::npos) {
      continue;
    }
    std::string_view value = item.substr(at + attribute.size());
    value = value.substr(0, value.find('"'));
    int place = -1;
    const auto read = std::from_chars(value.data(), value.data() + value.size(), place);
    if (read.ec != std::errc() || place < 0 || place > kMaxPlace) {
      throw InterfaceError("\"" + std::string(value) + "\" is not a place in a grid");
    }
  }
}

void requireValidGridPlaces(std::string_view form) {
  constexpr std::string_view kItem = "<item ";
  for (std::size_t at = form.find(kItem); at != std::string_view::npos;
       at = form.find(kItem, at + kItem.size())) {
    requireValidGridPlace(form.substr(at, form.find('>', at) - at));
  }
}

std::unique_ptr<QWidget> readWidgets(const std::filesystem::path& path, QStyle& style) {
  QFile file(QString::fromStdString(path.string()));
  if (!file.open(QIODevice::ReadOnly)) {
    throw InterfaceError("cannot be opened: " + file.errorString().toStdString());
  }
  QByteArray form = file.readAll();
  requireValidGridPlaces({form.constData(), static_cast<std::size_t>(form.size())});
  QBuffer buffer(&form);
  buffer.open(QIODevice::ReadOnly);
  WidgetFactory factory(style);
  std::unique_ptr<QWidget> top(factory.load(&buffer));
  if (!factory.unknownClass().empty()) {
    throw InterfaceError("a widget is of an unknown class, \"" + factory.unknownClass() + "\"");
  }
  if (!top) {
    throw InterfaceError(factory.errorString().toStdString());
  }
  return top;
}

/// Turns the sheets into windows and returns the view. Removes the sheets first, because removing
/// the view, which is the current page, would bring a sheet to the front and lay it out at once.
std::unique_ptr<QtView> extractView(QWidget& top) {
  auto* pages = qobject_cast<QStackedWidget*>(&top);
  if (pages == nullptr) {
    throw InterfaceError("its top widget is not a QStackedWidget");
  }
  QtView* view = nullptr;
  std::vector<SheetDialog*> sheets;
  for (int index = 0; index < pages->count(); ++index) {
    QWidget* page = pages->widget(index);
    if (auto* custom = dynamic_cast<QtView*>(page); custom != nullptr && view == nullptr) {
      view = custom;
    } else if (auto* sheet = dynamic_cast<SheetDialog*>(page)) {
      sheets.push_back(sheet);
    } else {
      throw InterfaceError("page \"" + page->objectName().toStdString() +
                           "\" is neither the one view nor a sheet");
    }
  }
  if (view == nullptr) {
    throw InterfaceError("it has no page of the class CustomView");
  }
  for (SheetDialog* sheet : sheets) {
    pages->removeWidget(sheet);
    sheet->becomeWindowOf(*view);
  }
  pages->removeWidget(view);
  // The pages hide what they let go, and Qt keeps to that as if the host had asked for it. A view
  // shows with the window that it is put into, like any new widget. (Showing it here would lay it
  // out once too often.)
  view->setAttribute(Qt::WA_WState_ExplicitShowHide, false);
  view->setParent(nullptr);
  return std::unique_ptr<QtView>(view);
}

void makeSeparators(QComboBox& box) {
  for (int index = 0; index < box.count(); ++index) {
    if (box.itemText(index) == QLatin1String(kSeparatorTitle)) {
      box.removeItem(index);
      box.insertSeparator(index);
    }
  }
}

void applyProperties(QtView& view, QSize drawnSize) {
  const TextStyles textStyles;
  view.setFont(viewFont());
  for (QWidget* widget : view.findChildren<QWidget*>()) {
    if (auto* tabs = qobject_cast<QTabWidget*>(widget)) {
      tabs->tabBar()->setStyle(view.style());
    } else if (auto* label = qobject_cast<QLabel*>(widget)) {
      textStyles.apply(label->property("textStyle").toString(), *label);
    } else if (auto* box = qobject_cast<QComboBox*>(widget)) {
      makeSeparators(*box);
    }
    if (widget->property("keepsPlace").toBool()) {
      QSizePolicy policy = widget->sizePolicy();
      policy.setRetainSizeWhenHidden(true);
      widget->setSizePolicy(policy);
    }
    if (widget->property(kFrameOriginProperty).isValid()) {
      new FramePlacement(*widget, view, drawnSize.height());
    }
  }
}

}  // namespace

Form loadForm(const std::filesystem::path& file) {
  // Before any button is made, because Qt may create a widget's accessible interface early.
  installAccessibleButtons();
  auto style = std::make_unique<SkinStyle>();
  const std::unique_ptr<QWidget> top = readWidgets(file, *style);
  Form form;
  form.drawnSize = top->size();
  form.view = extractView(*top);
  applyProperties(*form.view, form.drawnSize);
  form.view->setSkinStyle(std::move(style));
  connectCaptionClicks(*form.view);
  return form;
}

}  // namespace ui::qt
