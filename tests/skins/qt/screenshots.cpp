// Draws every page and sheet of the view, light and dark, into PNG files.
// usage: screenshots FOLDER [LANGUAGE] [--long]     (QT_SCALE_FACTOR scales)

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QApplication>
#include <QComboBox>
#include <QPainter>
#include <QPixmap>
#include <QTabWidget>
#include <QTimer>
#include <algorithm>
#include <chrono>
#include <cstdio>
#include <filesystem>
#include <optional>
#include <string>
#include <vector>

#include "contract/ConverterInterface.h"
#include "skins/qt/Host.h"
#include "view/fakes/FakeConverter.h"
#include "view/listening_test/Draws.h"

namespace {

using namespace std::chrono_literals;

velk::PeakStatistics hotMix() {
  velk::PeakStatistics statistics{};
  statistics[velk::kPeakStatsSlot_SourceLeft] = {-0.1F, 0.4F, 0, 12};
  statistics[velk::kPeakStatsSlot_SourceRight] = {-0.1F, 0.2F, 0, 3};
  statistics[velk::kPeakStatsSlot_EncodedLeft] = {0.9F, 1.2F, 31, 57};
  statistics[velk::kPeakStatsSlot_EncodedRight] = {0.7F, 1.1F, 18, 44};
  return statistics;
}

void saveTo(const std::filesystem::path& file, const QPixmap& picture) {
  if (!picture.save(QString::fromStdString(file.string()))) {
    std::fprintf(stderr, "cannot write %s\n", file.c_str());
  }
}

class Album {
 public:
  Album(std::filesystem::path folder, const qt_test::HostOptions& options, std::string theme)
      : folder_(std::move(folder)), theme_(std::move(theme)), options_(options) {}

  void shoot() {
    shootAudition();
    shootMono();
    shootTest();
    shootResults("results-incomplete", 5, 3);
    shootResults("results-failed", 13, 7);
    shootResults("results-passed", 10, 0);
    shootSavePanel();
    shootSheets();
    shootAlert();
  }

  const std::vector<QPixmap>& pictures() const { return pictures_; }

 private:
  /// A unit and a view of it.
  struct Scene {
    Scene(const qt_test::HostOptions& options, UInt32 channels) : unit(log) {
      unit.channels = channels;
      unit.setSetting({0.0F, 1.0F, 14.0F});
      host.emplace(unit, options);
      settle();
    }
    void settle() { host->advance(200ms); }
    void click(const char* outlet) {
      host->outlet<QAbstractButton>(outlet).click();
      settle();
    }
    void clickTest(const std::string& outlet) {
      click(("listeningTestController." + outlet).c_str());
    }
    /// Gives a right or a wrong answer. A is the source in every cycle but, perhaps, the first.
    void answer(bool rightly) {
      if (isFirstAnswer) clickTest("aButton");
      const bool sayA = (!isFirstAnswer || unit.monitorSource != 0) == rightly;
      isFirstAnswer = false;
      listening_test::nextDrawMakesASource(true);
      clickTest(sayA ? "aIsSourceButton" : "bIsSourceButton");
    }
    void showTestPage(bool show) {
      host->outlet<QTabWidget>("view.tabView").setCurrentIndex(show ? 1 : 0);
      QApplication::processEvents();
    }

    fakes::CallLog log;
    fakes::FakeConverter unit;
    std::optional<qt_test::Host> host;
    bool isFirstAnswer = true;
  };

  void shootAudition() {
    Scene scene(options_, 2);
    save(scene.host->window(), "audition");
    scene.click("auditionController.showDetailsButton");
    scene.click("auditionController.resetButton");
    save(scene.host->window(), "details");
    scene.unit.statistics = hotMix();
    scene.settle();
    save(scene.host->window(), "details-overs");
    scene.click("auditionController.showDetailsButton");
    save(scene.host->window(), "audition-overs");
    scene.host->outlet("auditionController.resetButton").setFocus();
    save(scene.host->window(), "audition-focus");
  }

  void shootMono() {
    Scene scene(options_, 1);
    scene.click("auditionController.showDetailsButton");
    scene.click("auditionController.resetButton");
    save(scene.host->window(), "mono");
    scene.unit.statistics = hotMix();
    scene.settle();
    save(scene.host->window(), "mono-overs");
  }

  void shootTest() {
    Scene scene(options_, 2);
    scene.showTestPage(true);
    save(scene.host->window(), "test");
    scene.clickTest("aButton");
    save(scene.host->window(), "test-a-first");
    scene.answer(true);
    save(scene.host->window(), "test-running");
    scene.clickTest("aButton");
    save(scene.host->window(), "test-a");
    scene.clickTest("bButton");
    save(scene.host->window(), "test-b");
    scene.clickTest("learnModeButton");
    save(scene.host->window(), "learning");
    scene.answer(true);
    save(scene.host->window(), "learning-right");
    scene.answer(false);
    save(scene.host->window(), "learning-wrong");
  }

  /// The results sheet after that many wrong and then right answers.
  void shootResults(const char* name, int right, int wrong) {
    Scene scene(options_, 2);
    scene.showTestPage(true);
    for (int i = 0; i < wrong; ++i) scene.answer(false);
    for (int i = 0; i < right; ++i) scene.answer(true);
    QWidget& sheet = scene.host->outlet("listeningTestController.resultsSheet");
    if (!sheet.isVisible()) scene.clickTest("endTestButton");
    save(sheet, name);
  }

  void shootSavePanel() {
    Scene scene(options_, 2);
    scene.showTestPage(true);
    scene.clickTest("endTestButton");
    scene.clickTest("saveResultsButton");
    save(scene.host->outlet("listeningTestController.resultsSheet"), "results-save");
    // The click returns only when the panel has closed.
    QTimer::singleShot(0, [this] {
      if (QWidget* panel = QApplication::activeModalWidget()) {
        save(*panel, "save-panel");
        panel->close();
      }
    });
    static_cast<QAbstractButton&>(scene.host->named("resultsOKButton")).click();
  }

  void shootSheets() {
    Scene scene(options_, 2);
    scene.click("view.settingsButton");
    save(scene.host->outlet("keyController.keySettingsSheet"), "keys");
    scene.click("keyController.doneButton");
    // Earlier settings, which the menu lists.
    for (const float quality : {20.0F, 90.0F}) {
      scene.unit.hostSetsSetting({0.0F, 2.0F, quality});
      scene.settle();
    }
    scene.unit.hostSetsSetting({1.0F, 0.0F, 5.0F});
    scene.settle();
    auto& menu = scene.host->outlet<QComboBox>("view.encoderPopup");
    menu.showPopup();
    save(*menu.view()->window(), "menu");
    menu.hidePopup();
    Q_EMIT menu.activated(menu.count() - 1);
    QWidget& sheet = scene.host->outlet("settingsController.settingsSheet");
    save(sheet, "custom-HE");
    scene.unit.hostSetsSetting({0.0F, 1.0F, 14.0F});
    scene.settle();
    save(sheet, "custom-rate");
    scene.unit.hostSetsSetting({0.0F, 2.0F, 96.0F});
    scene.settle();
    save(sheet, "custom-quality");
  }

  void shootAlert() {
    Scene scene(options_, 2);
    scene.showTestPage(true);
    scene.click("listeningTestController.aIsSourceButton");
    scene.showTestPage(false);
    for (QWidget* window : QApplication::topLevelWidgets()) {
      if (window->inherits("QMessageBox") && window->isVisible()) {
        save(*window, "alert");
      }
    }
  }

  void save(QWidget& widget, const std::string& name) {
    QApplication::processEvents();
    pictures_.push_back(widget.grab());
    const std::string number = std::to_string(100 + pictures_.size()).substr(1);
    saveTo(folder_ / (theme_ + "-" + number + "-" + name + ".png"), pictures_.back());
  }

  std::filesystem::path folder_;
  std::string theme_;
  qt_test::HostOptions options_;
  std::vector<QPixmap> pictures_;
};

/// All pictures on one page, a column for each theme.
QPixmap overview(const std::vector<std::vector<QPixmap>>& columns) {
  constexpr int kGap = 16;
  int width = kGap;
  int height = 0;
  for (const auto& column : columns) {
    int columnWidth = 0;
    int columnHeight = kGap;
    for (const QPixmap& picture : column) {
      columnWidth = std::max(columnWidth, picture.width());
      columnHeight += picture.height() + kGap;
    }
    width += columnWidth + kGap;
    height = std::max(height, columnHeight);
  }
  QPixmap page(width, height);
  page.fill(QColor(0x8B8F97));
  QPainter painter(&page);
  int x = kGap;
  for (const auto& column : columns) {
    int y = kGap;
    int columnWidth = 0;
    for (QPixmap picture : column) {
      picture.setDevicePixelRatio(1.0);
      painter.drawPixmap(x, y, picture);
      y += picture.height() + kGap;
      columnWidth = std::max(columnWidth, picture.width());
    }
    x += columnWidth + kGap;
  }
  return page;
}

}  // namespace

int main(int count, char** arguments) {
  if (count < 2) {
    std::fprintf(stderr, "usage: screenshots FOLDER [LANGUAGE] [--long]\n");
    return 2;
  }
  if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM")) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
  }
  const QApplication application(count, arguments);
  const std::filesystem::path folder = arguments[1];
  std::filesystem::create_directories(folder);
  const qt_test::ResourceFolder resources;
  qt_test::HostOptions options;
  options.resources = resources.path();
  for (int index = 2; index < count; ++index) {
    if (std::string(arguments[index]) == "--long") {
      resources.lengthenTexts();
    } else {
      options.language = options.locale = arguments[index];
    }
  }
  std::vector<std::vector<QPixmap>> columns;
  for (const std::string theme : {"light", "dark"}) {
    theme == "light" ? qt_test::setLightPalette() : qt_test::setDarkPalette();
    Album album(folder, options, theme);
    album.shoot();
    columns.push_back(album.pictures());
  }
  saveTo(folder / "overview.png", overview(columns));
  return 0;
}
