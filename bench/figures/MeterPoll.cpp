#include <cstring>
#include <memory>

#include "Clock.h"
#include "Figure.h"
#include "Rig.h"
#include "view/factory/InterfaceObjects.h"
#include "view/factory/Velk_AUAACConverterFactory.h"
#include "view/fakes/CallLog.h"
#include "view/fakes/FakeInterfaceLoader.h"
#include "view/fakes/FakeNativeView.h"
#include "view/fakes/FakeToolkit.h"

namespace figures {
namespace {

constexpr int kPolls = 20000;

/// The view's core with controls that only record their calls, bound to a real unit that has played
/// something with overs.
std::vector<Row> measure() {
  Rig rig;
  Signal hot = music(2, 60000, 44100);
  for (auto& samples : hot) {
    for (float& sample : samples) sample *= 3;
  }
  rig.render(hot);
  fakes::CallLog calls;
  fakes::FakeToolkit toolkit(calls);
  velk::Velk_AUAACConverterFactory factory(
      std::make_unique<fakes::FakeInterfaceLoader>(calls, toolkit));
  const auto loaded = factory.uiViewForAudioUnit(&rig.unit(), {});
  auto& native = dynamic_cast<fakes::FakeNativeView&>(*loaded);
  auto& controller = dynamic_cast<velk::InterfaceObjects&>(native.objects()).auditionController();
  controller.updateClipIndicators();
  calls.clear();
  std::vector<double> rounds;
  for (int round = 0; round < 5; ++round) {
    const double start = threadSeconds();
    for (int poll = 0; poll < kPolls; ++poll) controller.updateClipIndicators();
    rounds.push_back((threadSeconds() - start) / kPolls);
  }
  return {atMost("meter_poll", 1e6 * median(rounds), 5, "us"),
          atMost("meter_poll_writes", static_cast<double>(calls.lines().size()), 0)};
}

}  // namespace

Family meterPoll() {
  return {{"meter_poll", "meter_poll_writes"}, measure};
}

}  // namespace figures
