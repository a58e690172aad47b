#include <functional>

#include "view/fakes/ViewTest.h"

namespace {

using fakes::UnitCall;

struct Failure {
  UnitCall call;
  UInt32 id;
};

std::string nameOf(const Failure& failure) {
  const char* call = failure.call == UnitCall::GetParameter   ? "GetParameter"
                     : failure.call == UnitCall::SetParameter ? "SetParameter"
                     : failure.call == UnitCall::GetProperty  ? "GetProperty"
                                                              : "SetProperty";
  return call + std::to_string(failure.id);
}

/// Every call that the view makes on its unit, refused once in the middle of everything that a user
/// and a host can do.
class EveryRefusedCall : public fakes::ViewTest, public testing::WithParamInterface<Failure> {
 protected:
  template <class Control>
  Control& control(const std::string& name) {
    return bound->control<Control>(name);
  }
  void click(const std::string& button) { control<fakes::FakeButton>(button).userClicks(); }
  void pick(const std::string& popUp, int index) {
    control<fakes::FakePopUpButton>(popUp).userPicks(index);
  }
  void changeTheSetting() { unit.hostSetsSetting({0, 0, 3}); }

  std::vector<std::function<void()>> operations() {
    return {
        [&] { changeTheSetting(); },
        [&] { unit.hostSetsProperty(velk::kConverterProperty_MonitorSource, 1); },
        [&] { unit.hostSetsProperty(velk::kConverterProperty_ListeningTestActive, 0); },
        [&] { menu().userPicks(1); },
        [&] { menu().userPicks(5); },
        [&] { menu().userPicks(menu().numberOfItems() - 1); },
        [&] { pick("settingsController.typePopup", 0); },
        [&] { pick("settingsController.strategyPopup", 0); },
        [&] { pick("settingsController.bitratePopup", 4); },
        [&] { click("settingsController.OKButton"); },
        [&] { view().setAU(&unit); },
        [&] { view().setAU(&unit); },
        [&] { click("auditionController.resetButton"); },
        [&] { bound->native->pressKey(18); },
        [&] { tabs().userClicks(1); },
        [&] { click("listeningTestController.aIsSourceButton"); },
        [&] { click("listeningTestController.endTestButton"); },
        [&] { bound->native->pressKey(0); },
        [&] { tabs().userClicks(0); },
    };
  }
};

TEST_P(EveryRefusedCall, LeavesAViewThatWorks) {
  const std::size_t count = [&] {
    bind();
    return operations().size();
  }();
  for (std::size_t refusedIn = 0; refusedIn < count; ++refusedIn) {
    SCOPED_TRACE(testing::Message() << "refused in operation " << refusedIn);
    unit.heal();
    unit.listeningTestActive = 0;
    unit.setSetting({0, 1, 14});
    bound.reset();
    bind();
    const auto steps = operations();
    for (std::size_t step = 0; step < steps.size(); ++step) {
      if (step == refusedIn) {
        unit.failOnce(GetParam().call, GetParam().id, -10851);
      }
      // The boundary that every skin puts around what a user or a timer starts.
      ui::runGuarded(steps[step]);
      settle();
    }

    unit.heal();
    forget();
    EXPECT_FALSE(control<fakes::FakeSheet>("settingsController.settingsSheet").visible);
    unit.hostSetsSetting({0, 2, 77});
    unit.hostSetsProperty(velk::kConverterProperty_MonitorSource, 0);
    settle();
    EXPECT_EQ(view().getEncoderName(), "AAC VBR Quality: 77");
    EXPECT_TRUE(view().isMonitoringEncoder());
    EXPECT_EQ(bound->toolkit.runLoop.runningTimers(), tabs().indexOfSelectedItem() == 0 ? 1 : 0);
  }
}

INSTANTIATE_TEST_SUITE_P(
    Unit, EveryRefusedCall,
    testing::Values(Failure{UnitCall::GetParameter, 0}, Failure{UnitCall::GetParameter, 1},
                    Failure{UnitCall::GetParameter, 2}, Failure{UnitCall::SetParameter, 0},
                    Failure{UnitCall::SetParameter, 1}, Failure{UnitCall::SetParameter, 2},
                    Failure{UnitCall::GetProperty, 4}, Failure{UnitCall::GetProperty, 8},
                    Failure{UnitCall::GetProperty, 24}, Failure{UnitCall::GetProperty, 5301},
                    Failure{UnitCall::GetProperty, 5302}, Failure{UnitCall::GetProperty, 5304},
                    Failure{UnitCall::SetProperty, 36}, Failure{UnitCall::SetProperty, 5301},
                    Failure{UnitCall::SetProperty, 5303}, Failure{UnitCall::SetProperty, 5304}),
    [](const auto& info) { return nameOf(info.param); });

}  // namespace
