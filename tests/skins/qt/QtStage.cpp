#include <gmock/gmock.h>

#include <QAbstractButton>
#include <QApplication>
#include <QComboBox>
#include <QLabel>
#include <QMessageBox>
#include <QPointer>
#include <QSlider>
#include <QStackedWidget>
#include <QTabWidget>
#include <QTimer>
#include <stdexcept>

#include "skins/qt/Host.h"
#include "skins/qt/Keys.h"
#include "skins/qt/Lamp.h"
#include "skins/qt/Mouse.h"
#include "skins/qt/PanelAnswers.h"
#include "skins/qt/QtColors.h"
#include "skins/qt/SegmentedControlAdapter.h"
#include "view/behaviour/Stage.h"
#include "view/fakes/BoundView.h"

namespace behaviour {

namespace {

/// The Qt skin's stage: a real off-screen window, operated by mouse and keyboard events.
class QtStage final : public Stage {
 public:
  explicit QtStage(const PrepareUnit& prepare) : unit_(record_.calls) {
    if (prepare) {
      prepare(unit_);
    }
    host_.emplace(unit_);

    advance(kSettled);
    record_.calls.clear();
    record_.log.clear();
    record_.notifications.clear();
  }

  fakes::FakeConverter& unit() override { return unit_; }

  void click(std::string_view button) override { qt_test::clickOn(host_->outlet(button)); }
  void selectSegment(std::string_view control, int segment) override {
    qt_test::clickOn(
        *ui::qt::segmentsOf(host_->outlet(control)).at(static_cast<std::size_t>(segment)));
  }
  void pickItem(std::string_view popUp, int index) override {
    qt_test::pickItem(host_->outlet<QComboBox>(popUp), index);
  }
  void dragSlider(std::string_view name, double value) override {
    qt_test::clickAt(host_->outlet<QSlider>(name), static_cast<int>(value));
  }
  void clickTab(int index) override {
    qt_test::clickTab(host_->outlet<QTabWidget>("view.tabView"), index);
  }
  void pressKey(std::uint16_t keyCode) override {
    host_->view()->setFocus();
    qt_test::pressKeyAt(keyCode, *host_->view());
  }
  void clickHelp(int tag) override {
    for (auto* button : host_->view()->findChildren<QAbstractButton*>()) {
      if (button->property("tag").toInt() == tag) {
        qt_test::clickOn(*button);
        return;
      }
    }
    throw std::out_of_range("no help button has the tag " + std::to_string(tag));
  }
  void confirmResults() override {
    // The click returns only when the panel has closed.
    QTimer::singleShot(0, &context_, [this] { answerSavePanel(); });
    qt_test::clickOn(host_->named("resultsOKButton"));
  }
  void answerAlert(bool stop) override {
    QMessageBox* box = host_->alert();
    if (box == nullptr) {
      throw std::logic_error("no alert is open");
    }
    for (QAbstractButton* button : box->buttons()) {
      if (button->text() == (stop ? "Stop" : "Resume")) {
        qt_test::clickOn(*button);
        return;
      }
    }
    throw std::logic_error("the alert lacks a button");
  }
  void willSaveTo(std::optional<std::filesystem::path> file) override {
    saveAnswer_ = std::move(file);
  }

  void requestSize(double width, double height) override {
    host_->native().setFrameSize({width, height});
  }
  void moveToOtherSuperview() override {
    auto* other = new QWidget(&host_->window());
    other->setGeometry(host_->window().rect());
    host_->view()->setParent(other);
    host_->view()->show();
    other->show();
  }
  void removeFromSuperview() override { host_->view()->setParent(nullptr); }

  void advance(std::chrono::milliseconds time) override { host_->advance(time); }

  bool isHidden(std::string_view control) override { return host_->outlet(control).isHidden(); }
  bool isEnabled(std::string_view control) override { return host_->outlet(control).isEnabled(); }
  int state(std::string_view button) override {
    return host_->outlet<QAbstractButton>(button).isChecked() ? 1 : 0;
  }
  int selectedSegment(std::string_view control) override {
    const auto segments = ui::qt::segmentsOf(host_->outlet(control));
    const auto on = std::find_if(segments.begin(), segments.end(),
                                 [](const QAbstractButton* button) { return button->isChecked(); });
    return on != segments.end() ? static_cast<int>(on - segments.begin()) : -1;
  }
  int lamp(std::string_view indicator) override {
    return host_->outlet<ui::qt::Lamp>(indicator).value();
  }
  std::string text(std::string_view field) override {
    return host_->outlet<QLabel>(field).text().toStdString();
  }
  bool isRed(std::string_view field) override {
    const auto& label = host_->outlet<QLabel>(field);
    const QColor background = label.palette().color(QPalette::Window);
    const QColor red = ui::qt::readable(QColor::fromRgbF(0.5F, 0, 0), background, 4.5);
    return label.font().bold() && label.palette().color(QPalette::WindowText).rgb() == red.rgb();
  }
  std::vector<std::string> itemTitles(std::string_view popUp) override {
    const auto& box = host_->outlet<QComboBox>(popUp);
    std::vector<std::string> titles;
    titles.reserve(static_cast<std::size_t>(box.count()));
    for (int index = 0; index < box.count(); ++index) {
      titles.push_back(box.itemText(index).toStdString());
    }
    return titles;
  }
  int selectedItem(std::string_view popUp) override {
    return host_->outlet<QComboBox>(popUp).currentIndex();
  }
  int selectedTab(std::string_view tabView) override {
    QWidget& pages = host_->outlet(tabView);
    const auto* tabs = qobject_cast<QTabWidget*>(&pages);
    return tabs != nullptr ? tabs->currentIndex()
                           : dynamic_cast<QStackedWidget&>(pages).currentIndex();
  }
  double sliderValue(std::string_view slider) override {
    return host_->outlet<QSlider>(slider).value();
  }
  bool isSheetOpen(std::string_view sheet) override { return host_->outlet(sheet).isVisible(); }
  std::string alertMessage() override {
    const QMessageBox* box = host_->alert();
    return box != nullptr ? box->text().toStdString() : std::string();
  }
  double width() override { return host_->view()->width(); }
  double height() override { return host_->view()->height(); }
  std::vector<std::string> proposedNames() override { return proposedNames_; }
  std::vector<std::string> openedHelp() override {
    std::vector<std::string> anchors;
    for (const QUrl& url : host_->openedUrls()) {
      anchors.push_back(url.fragment().toStdString());
    }
    return anchors;
  }

  const std::vector<std::string>& logLines() override { return record_.log.lines(); }
  const std::vector<std::string>& notifications() override { return record_.notifications.names(); }

 private:
  void answerSavePanel() {
    if (const auto proposed = qt_test::answerSavePanel(saveAnswer_)) {
      proposedNames_.push_back(*proposed);
    }
  }

  fakes::Record record_;
  fakes::FakeConverter unit_;
  std::optional<qt_test::Host> host_;
  QObject context_;
  std::optional<std::filesystem::path> saveAnswer_;
  std::vector<std::string> proposedNames_;
};

}  // namespace

std::unique_ptr<Stage> setStage(const PrepareUnit& prepare) {
  return std::make_unique<QtStage>(prepare);
}

}  // namespace behaviour
