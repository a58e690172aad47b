#include "skins/qt/CaptionClicks.h"

#include <QAbstractButton>
#include <QEvent>
#include <QLabel>
#include <QMouseEvent>
#include <QVariant>

#include "ui/InterfaceFile.h"

namespace ui::qt {

namespace {

class CaptionClick final : public QObject {
 public:
  CaptionClick(QLabel& caption, QAbstractButton& button) : QObject(&caption), button_(button) {
    caption.installEventFilter(this);
  }

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override {
    if (event->type() == QEvent::MouseButtonPress) {
      // Accept the press so that the release comes here too.
      return static_cast<QMouseEvent*>(event)->button() == Qt::LeftButton;
    }
    if (event->type() != QEvent::MouseButtonRelease) {
      return false;
    }
    const auto* release = static_cast<QMouseEvent*>(event);
    if (release->button() == Qt::LeftButton &&
        static_cast<QWidget*>(watched)->rect().contains(release->position().toPoint())) {
      button_.click();
    }
    return true;
  }

 private:
  QAbstractButton& button_;
};

}  // namespace

void connectCaptionClicks(QWidget& view) {
  for (QLabel* caption : view.findChildren<QLabel*>()) {
    const QString name = caption->property("clicks").toString();
    if (name.isEmpty()) {
      continue;
    }
    auto* button = view.findChild<QAbstractButton*>(name);
    if (button == nullptr) {
      throw InterfaceError("widget \"" + caption->objectName().toStdString() +
                           "\" clicks a button that does not exist: \"" + name.toStdString() +
                           "\"");
    }
    new CaptionClick(*caption, *button);
  }
}

}  // namespace ui::qt
