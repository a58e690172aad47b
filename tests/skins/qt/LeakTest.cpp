#include <gtest/gtest.h>
#include <malloc.h>

#include <QAbstractButton>
#include <QApplication>
#include <QTabWidget>
#include <chrono>

#include "skins/qt/Host.h"
#include "view/fakes/FakeConverter.h"

namespace {

using namespace std::chrono_literals;

#if defined(__SANITIZE_ADDRESS__)
constexpr bool kMeasures = false;
#elif defined(__has_feature)
#if __has_feature(address_sanitizer)
constexpr bool kMeasures = false;
#else
constexpr bool kMeasures = true;
#endif
#else
constexpr bool kMeasures = true;
#endif

void openAndClose(fakes::FakeConverter& unit) {
  qt_test::Host host(unit);
  host.advance(120ms);
  host.outlet<QAbstractButton>("auditionController.showDetailsButton").click();
  host.outlet<QTabWidget>("view.tabView").setCurrentIndex(1);
  host.outlet<QAbstractButton>("view.settingsButton").click();
  QApplication::processEvents();
  host.outlet<QAbstractButton>("keyController.doneButton").click();
}

/// A leak checker finds lost memory; this finds memory that is still referenced but accumulates.
TEST(OpeningAndClosingViews, AccumulatesNoMemory) {
  fakes::CallLog calls;
  fakes::FakeConverter unit(calls);
  const int times = kMeasures ? 100 : 10;
  const auto run = [&] {
    for (int time = 0; time < times; ++time) {
      openAndClose(unit);
      calls.clear();
    }
    QApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QApplication::processEvents();
    return mallinfo2().uordblks;
  };
  // The first run fills the font and pixmap caches.
  const std::size_t before = run();
  const std::size_t after = run();
  if (kMeasures) {
    const double perView =
        (static_cast<double>(after) - static_cast<double>(before)) / static_cast<double>(times);
    EXPECT_LT(perView, 256.0) << "bytes per view";
  }
  EXPECT_TRUE(QApplication::topLevelWidgets().isEmpty());
}

}  // namespace
