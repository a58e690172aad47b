#pragma once

#include <gtest/gtest.h>

#include <QAbstractButton>
#include <QApplication>
#include <QComboBox>
#include <QTabWidget>
#include <chrono>
#include <string>

#include "skins/qt/Host.h"
#include "view/fakes/FakeConverter.h"

namespace qt_test {

/// Large readings, so that every field is as wide as it can get.
inline velk::PeakStatistics loudMix() {
  velk::PeakStatistics statistics{};
  for (auto& record : statistics) {
    record = {12.3F, 14.4F, 99999, 123456};
  }
  return statistics;
}

/// Shows every page and sheet in turn, each laid out on the screen, and calls `look` for it.
class Tour {
 public:
  Tour(fakes::FakeConverter& unit, const HostOptions& options)
      : unit_(unit), host_(unit, options) {}

  template <class Look>
  void take(Look look) {
    host_.advance(std::chrono::milliseconds(120));
    look(*host_.view());
    unit_.statistics = loudMix();
    click("auditionController.showDetailsButton");
    host_.advance(std::chrono::milliseconds(200));
    look(*host_.view());
    auto& tabs = host_.outlet<QTabWidget>("view.tabView");
    tabs.setCurrentIndex(1);
    settle();
    look(*host_.view());
    click("listeningTestController.learnModeButton");
    for (const char* answer : {"aIsSourceButton", "bIsSourceButton"}) {
      click(std::string("listeningTestController.") + answer);
      settle();
      look(*host_.view());
    }
    click("listeningTestController.endTestButton");
    lookAtSheet("listeningTestController.resultsSheet", look);
    dynamic_cast<QAbstractButton&>(host_.named("resultsOKButton")).click();
    click("view.settingsButton");
    lookAtSheet("keyController.keySettingsSheet", look);
    click("keyController.doneButton");
    auto& menu = host_.outlet<QComboBox>("view.encoderPopup");
    Q_EMIT menu.activated(menu.count() - 1);
    lookAtSheet("settingsController.settingsSheet", look);
    unit_.hostSetsSetting({0.0F, 2.0F, 127.0F});
    host_.advance(std::chrono::milliseconds(120));
    lookAtSheet("settingsController.settingsSheet", look);
    click("settingsController.OKButton");
    // A long custom title.
    host_.advance(std::chrono::milliseconds(120));
    look(*host_.view());
  }

  Host& host() { return host_; }

 private:
  void click(const std::string& outlet) { host_.outlet<QAbstractButton>(outlet).click(); }
  static void settle() { QApplication::processEvents(); }
  template <class Look>
  void lookAtSheet(const char* outlet, Look& look) {
    settle();
    QWidget& sheet = host_.outlet(outlet);
    ASSERT_TRUE(sheet.isVisible()) << outlet;
    look(sheet);
  }

  fakes::FakeConverter& unit_;
  Host host_;
};

}  // namespace qt_test
