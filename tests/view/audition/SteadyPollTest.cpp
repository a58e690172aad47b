#include <gtest/gtest.h>

#include <cstdlib>
#include <cstring>
#include <memory>
#include <new>

#include "audio_unit/Unit.h"
#include "view/factory/InterfaceObjects.h"
#include "view/factory/Velk_AUAACConverterFactory.h"
#include "view/fakes/CallLog.h"
#include "view/fakes/FakeInterfaceLoader.h"
#include "view/fakes/FakeToolkit.h"

namespace {

std::size_t allocations = 0;

}  // namespace

void* operator new(std::size_t size) {
  ++allocations;
  if (void* memory = std::malloc(size)) {
    return memory;
  }
  throw std::bad_alloc();
}

void operator delete(void* memory) noexcept {
  std::free(memory);
}
void operator delete(void* memory, std::size_t) noexcept {
  std::free(memory);
}

namespace audition_test {
namespace {

/// A unit that keeps no record, so that it allocates nothing itself.
class QuietUnit final : public audio_unit::Unit {
 public:
  velk::PeakStatistics statistics{};

  OSStatus getParameter(AudioUnitParameterID, AudioUnitScope, AudioUnitElement,
                        AudioUnitParameterValue& value) override {
    value = 0;
    return noErr;
  }
  OSStatus setParameter(AudioUnitParameterID, AudioUnitScope, AudioUnitElement,
                        AudioUnitParameterValue, UInt32) override {
    return noErr;
  }
  OSStatus getProperty(AudioUnitPropertyID id, AudioUnitScope, AudioUnitElement, void* data,
                       UInt32& size) override {
    if (id == velk::kConverterProperty_PeakStats) {
      std::memcpy(data, &statistics, sizeof(statistics));
      return noErr;
    }
    if (id == kAudioUnitProperty_StreamFormat) {
      AudioStreamBasicDescription format{};
      format.mChannelsPerFrame = 2;
      std::memcpy(data, &format, size);
      return noErr;
    }
    return kAudioUnitErr_InvalidProperty;
  }
  OSStatus setProperty(AudioUnitPropertyID, AudioUnitScope, AudioUnitElement, const void*,
                       UInt32) override {
    return noErr;
  }
};

TEST(SteadyPoll, WritesNoControlAndAllocatesNothing) {
  fakes::CallLog calls;
  fakes::FakeToolkit toolkit(calls);
  QuietUnit unit;
  velk::Velk_AUAACConverterFactory factory(
      std::make_unique<fakes::FakeInterfaceLoader>(calls, toolkit));
  const auto loaded = factory.uiViewForAudioUnit(&unit, {});
  ASSERT_NE(loaded, nullptr);
  auto& native = dynamic_cast<fakes::FakeNativeView&>(*loaded);
  auto& controller = dynamic_cast<velk::InterfaceObjects&>(native.objects()).auditionController();

  unit.statistics.fill({1.0F, 2.0F, 3, 4});
  controller.updateClipIndicators();
  ASSERT_GT(calls.count("auditionController."), 0U);

  calls.clear();
  const std::size_t before = allocations;
  for (int poll = 0; poll < 1000; ++poll) {
    controller.updateClipIndicators();
  }
  EXPECT_EQ(allocations, before);
  EXPECT_EQ(calls.lines().size(), 0U);
}

}  // namespace
}  // namespace audition_test
