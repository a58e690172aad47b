// Draws every page and sheet of the view, light and dark, into PNG files.
// usage: screenshots FOLDER [LANGUAGE] [--long]     (QT_SCALE_FACTOR scales)

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QApplication>
#include <QComboBox>
#include <QPainter>
#include <QPixmap>
#include <QTabWidget>
#include <algorithm>
#include <chrono>
#include <cstdio>
#include <filesystem>
#include <optional>
#include <string>
#include <vector>

#include "contract/ConverterInterface.h"
#include "fakes/FakeConverter.h"
#include "qt/Host.h"

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
      : folder_(std::move(folder)), theme_(std::move(theme)), unit_(log_) {
    unit_.setSetting({0.0F, 1.0F, 14.0F});
    host_.emplace(unit_, options);
  }

  void shoot() {
    host_->advance(100ms);
    save(host_->window(), "1-audition");
    unit_.statistics = hotMix();
    host_->advance(200ms);
    click("auditionController.showDetailsButton");
    save(host_->window(), "2-details");
    auto& tabs = host_->outlet<QTabWidget>("view.tabView");
    tabs.setCurrentIndex(1);
    save(host_->window(), "3-test");
    click("listeningTestController.learnModeButton");
    click("listeningTestController.aIsSourceButton");
    host_->advance(100ms);
    save(host_->window(), "4-learning");
    click("listeningTestController.endTestButton");
    save(host_->outlet("listeningTestController.resultsSheet"), "5-results");
    static_cast<QAbstractButton&>(host_->named("resultsOKButton")).click();
    click("view.settingsButton");
    save(host_->outlet("keyController.keySettingsSheet"), "6-keys");
    click("keyController.doneButton");
    auto& menu = host_->outlet<QComboBox>("view.encoderPopup");
    menu.showPopup();
    save(*menu.view()->window(), "7-menu");
    menu.hidePopup();
    emit menu.activated(menu.count() - 1);
    save(host_->outlet("settingsController.settingsSheet"), "8-custom");
    unit_.hostSetsSetting({0.0F, 2.0F, 96.0F});
    host_->advance(100ms);
    save(host_->outlet("settingsController.settingsSheet"), "9-quality");
    click("settingsController.OKButton");
    host_->advance(100ms);
    click("listeningTestController.aIsSourceButton");
    host_->advance(100ms);
    tabs.setCurrentIndex(0);
    QApplication::processEvents();
    for (QWidget* window : QApplication::topLevelWidgets()) {
      if (window->inherits("QMessageBox")) {
        save(*window, "10-alert");
      }
    }
  }

  const std::vector<QPixmap>& pictures() const { return pictures_; }

 private:
  void click(const char* outlet) { host_->outlet<QAbstractButton>(outlet).click(); }

  void save(QWidget& widget, const std::string& name) {
    QApplication::processEvents();
    pictures_.push_back(widget.grab());
    saveTo(folder_ / (theme_ + "-" + name + ".png"), pictures_.back());
  }

  std::filesystem::path folder_;
  std::string theme_;
  fakes::CallLog log_;
  fakes::FakeConverter unit_;
  std::optional<qt_test::Host> host_;
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
