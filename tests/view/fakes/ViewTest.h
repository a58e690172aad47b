#pragma once

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <chrono>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "ui/AssertionHandler.h"
#include "view/fakes/BoundView.h"
#include "view/fakes/FakeControls.h"
#include "view/fakes/FakePopUpButton.h"
#include "view/fakes/FakeTabView.h"

namespace fakes {

/// A unit and, from `bind` on, a view of it over the fake toolkit.
class ViewTest : public testing::Test {
 protected:
  ViewTest() : unit(record.calls) {}

  /// Binds a view, lets everything that this causes arrive, and forgets it.
  void bind() {
    bound = std::make_unique<BoundView>(record, unit);
    settle();
    forget();
  }
  velk::Velk_AUAACConverterCustomView& view() { return bound->view(); }
  FakePopUpButton& menu() { return bound->control<FakePopUpButton>("view.encoderPopup"); }
  FakeTabView& tabs() { return bound->control<FakeTabView>("view.tabView"); }

  void advance(int milliseconds) { bound->advance(std::chrono::milliseconds(milliseconds)); }
  void settle() { advance(120); }
  void forget() {
    record.calls.clear();
    record.log.clear();
    record.notifications.clear();
  }
  /// Writes to the unit by anybody but the host.
  std::vector<std::string> writes() const { return record.calls.starting("unit.set"); }

  Record record;
  FakeConverter unit;
  std::unique_ptr<BoundView> bound;
};

/// Records assertion failures instead of throwing them while it lives.
class QuietAssertions final : public ui::AssertionHandler {
 public:
  QuietAssertions() { ui::AssertionHandler::setCurrentHandler(this); }
  QuietAssertions(const QuietAssertions&) = delete;
  QuietAssertions& operator=(const QuietAssertions&) = delete;
  ~QuietAssertions() override { ui::AssertionHandler::setCurrentHandler(nullptr); }
  void handleFailure(const ui::Assertion& assertion) override { failures.push_back(assertion); }

  std::vector<ui::Assertion> failures;
};

}  // namespace fakes
