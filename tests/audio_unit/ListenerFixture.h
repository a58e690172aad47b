#pragma once

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <chrono>
#include <optional>

#include "TestListener.h"

using std::chrono::milliseconds;
using testing::ElementsAre;
using testing::IsEmpty;

/// A run loop that the test pumps at times it chooses.
class ListenerFixture : public testing::Test {
 protected:
  using TimePoint = audio_unit::RunLoop::TimePoint;

  static TimePoint at(int ms) { return TimePoint(std::chrono::hours(1) + milliseconds(ms)); }
  std::optional<TimePoint> pumpAt(int ms) { return loop.pump(at(ms)); }

  audio_unit::RunLoop loop;
  FakeUnit unit;
  Journal journal;
};
