#pragma once

#include <chrono>
#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "view/fakes/BoundView.h"
#include "view/fakes/FakeControls.h"
#include "view/fakes/FakeTabView.h"

namespace audition_test {

/// A bound view over fakes that shows the audition page; what binding caused has arrived.
class AuditionPage {
 public:
  explicit AuditionPage(UInt32 channels = 2) : unit(record.calls) {
    unit.channels = channels;
    bind();
  }
  explicit AuditionPage(const std::function<void(fakes::FakeConverter&)>& prepareUnit)
      : unit(record.calls) {
    prepareUnit(unit);
    bind();
  }

  velk::Velk_AACEncodingViewAuditionController& controller() {
    return view->objects().auditionController();
  }
  template <class Control>
  Control& control(const std::string& outlet) {
    return view->control<Control>("auditionController." + outlet);
  }
  fakes::FakeTabView& tabs() { return view->control<fakes::FakeTabView>("view.tabView"); }

  void advance(int milliseconds) { view->advance(std::chrono::milliseconds(milliseconds)); }
  void poll() { advance(75); }

  /// What was written to the page's controls since the log was cleared, without the page's name.
  std::vector<std::string> writes() const {
    const std::string page = "auditionController.";
    std::vector<std::string> found;
    for (const std::string& line : record.calls.starting(page)) {
      found.push_back(line.substr(page.size()));
    }
    return found;
  }

  fakes::Record record;
  fakes::FakeConverter unit;
  std::unique_ptr<fakes::BoundView> view;

 private:
  void bind() {
    view = std::make_unique<fakes::BoundView>(record, unit);
    advance(60);
    record.calls.clear();
  }
};

}  // namespace audition_test
