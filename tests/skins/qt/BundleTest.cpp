#include <dlfcn.h>
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <QApplication>
#include <QString>
#include <QVBoxLayout>
#include <QWidget>
#include <filesystem>
#include <memory>

#include "ui/AUCocoaUIBase.h"
#include "view/fakes/FakeConverter.h"
#include "view/fakes/LogCapture.h"

namespace {

/// The bundle, loaded as by a host: once, and never unloaded.
void* bundle() {
  static void* const handle = dlopen(VELK_BUNDLE "/Velk_NordaAACConverter", RTLD_NOW | RTLD_LOCAL);
  return handle;
}

std::unique_ptr<AUCocoaUIBase> instantiate(const char* className) {
  const auto entry =
      reinterpret_cast<VelkInstantiateClassFunction>(dlsym(bundle(), kVelkInstantiateClassSymbol));
  return std::unique_ptr<AUCocoaUIBase>(entry != nullptr ? entry(className) : nullptr);
}

TEST(Bundle, GivesItsFactoryByTheClassName) {
  ASSERT_NE(bundle(), nullptr) << dlerror();
  const auto factory = instantiate("Velk_AUAACConverterFactory");
  ASSERT_NE(factory, nullptr);
  EXPECT_EQ(factory->interfaceVersion(), 0U);
  EXPECT_EQ(factory->description(), "Norda AAC Dravo Converter");
}

TEST(Bundle, KnowsNoOtherClass) {
  ASSERT_NE(bundle(), nullptr) << dlerror();
  EXPECT_EQ(instantiate("Velk_AUAACConverterCustomView"), nullptr);
  EXPECT_EQ(instantiate(""), nullptr);
  EXPECT_EQ(instantiate(nullptr), nullptr);
}

TEST(Bundle, FindsItsResourcesBesideItself) {
  ASSERT_NE(bundle(), nullptr) << dlerror();
  fakes::CallLog calls;
  fakes::FakeConverter unit(calls);
  const fakes::LogCapture log(calls);
  const auto factory = instantiate("Velk_AUAACConverterFactory");
  ASSERT_NE(factory, nullptr);
  QWidget window;
  auto view = factory->uiViewForAudioUnit(&unit, {0, 0});
  ASSERT_NE(view, nullptr) << testing::PrintToString(log.lines());
  auto* widget = dynamic_cast<QWidget*>(view.get());
  ASSERT_NE(widget, nullptr);
  EXPECT_EQ(view->frameSize(), (ui::Size{560, 195}));
  widget->setParent(&window);
  static_cast<void>(view.release());
}

/// A host that has a view from the bundle and does with it what its test is about.
class ViewOfTheBundle : public testing::Test {
 protected:
  void SetUp() override {
    ASSERT_NE(bundle(), nullptr) << dlerror();
    const auto factory = instantiate("Velk_AUAACConverterFactory");
    ASSERT_NE(factory, nullptr);
    auto view = factory->uiViewForAudioUnit(&unit_, {0, 0});
    widget_.reset(dynamic_cast<QWidget*>(view.get()));
    ASSERT_NE(widget_, nullptr);
    static_cast<void>(view.release());
  }
  /// Hands the view over to a parent.
  QWidget* given() { return widget_.release(); }

  fakes::CallLog calls_;
  fakes::FakeConverter unit_{calls_};
  QWidget window_;
  std::unique_ptr<QWidget> widget_;
};

TEST_F(ViewOfTheBundle, ShowsWithTheWindowThatItIsPutInto) {
  QWidget* const view = given();
  view->setParent(&window_);
  EXPECT_FALSE(view->isVisible());
  window_.show();
  EXPECT_TRUE(view->isVisible());
  EXPECT_EQ(view->size(), QSize(560, 195));
}

TEST_F(ViewOfTheBundle, ShowsWhereALayoutOfAVisibleWindowTakesIt) {
  auto* const layout = new QVBoxLayout(&window_);
  window_.show();
  QWidget* const view = given();
  layout->addWidget(view);
  QApplication::processEvents();
  EXPECT_TRUE(view->isVisible());
}

TEST_F(ViewOfTheBundle, StaysHiddenWhereItsHostHidesIt) {
  QWidget* const view = given();
  view->setParent(&window_);
  view->hide();
  window_.show();
  EXPECT_FALSE(view->isVisible());
}

TEST(Bundle, HoldsItsResources) {
  for (const char* file : {"Velk_NordaAACConverter.ui", "en.lproj/AUDravoAACStrings.strings",
                           "de.lproj/AUDravoAACStrings.strings",
                           "fr.lproj/AUDravoAACStrings.strings", "help/index.html"}) {
    EXPECT_TRUE(
        std::filesystem::is_regular_file(std::filesystem::path(VELK_BUNDLE) / "Resources" / file))
        << file;
  }
}

TEST(Bundle, ExportsTheNamesOfItsNotifications) {
  ASSERT_NE(bundle(), nullptr) << dlerror();
  const std::pair<const char*, std::string_view> names[] = {
      {"monitorSourceActionPerformedNotification", "aac_monitorSourceActionPerformedNotification"},
      {"monitorEncodedActionPerformedNotification",
       "aac_monitorEncodedActionPerformedNotification"},
      {"clearClipActionPerformedNotification", "aac_clearClipActionPerformedNotification"},
      {"listeningTestMonitorSourceActionPerformedNotification",
       "aac_listeningTestMonitorSourceActionPerformedNotification"},
      {"listeningTestMonitorAActionPerformedNotification",
       "aac_monitorAActionPerformedNotification"},
      {"listeningTestMonitorBActionPerformedNotification",
       "aac_monitorBActionPerformedNotification"},
      {"listeningTestChooseAActionPerformedNotification",
       "aac_listeningTestChooseAActionPerformedNotification"},
      {"listeningTestChooseBActionPerformedNotification",
       "aac_listeningTestChooseBActionPerformedNotification"},
      {"auAACSourceSelectionChangedNotification", "auAACSourceSelectionChangedNotification"},
      {"auAACResetStatsNotification", "auAACResetStatsNotification"},
      {"auAACListeningTestStateChangedNotification", "auAACListeningTestStateChangedNotification"}};
  for (const auto& [symbol, text] : names) {
    const auto* name = static_cast<const QString*>(dlsym(bundle(), symbol));
    ASSERT_NE(name, nullptr) << symbol;
    EXPECT_EQ(name->toStdString(), text);
  }
}

}  // namespace
