#include <gtest/gtest.h>

#include <atomic>
#include <thread>
#include <vector>

#include "SameStatistics.h"
#include "converter/meters/PeakStatisticsExchange.h"
#include "converter/meters/TruePeakMeter.h"

using converter::clearedPeakStatistics;
using converter::PeakStatisticsExchange;
using velk::PeakStatistics;

namespace {

/// Statistics whose members all encode the same number, so that a mixture of two shows.
PeakStatistics blockOf(std::int64_t number, std::int64_t clips) {
  PeakStatistics block;
  block.fill({static_cast<float>(number), static_cast<float>(number), clips, number});
  return block;
}

bool isWhole(const PeakStatistics& block) {
  return same(block, clearedPeakStatistics()) ||
         same(block, blockOf(block[0].mInterSampleClipCount, block[0].mSampleClipCount));
}

/// Enough to catch, in most runs, a reader that does not check the edition a second time.
constexpr std::int64_t kRounds = 1000000;

}  // namespace

TEST(PeakStatisticsExchange, ReadsClearedStatisticsBeforeAnythingIsPublished) {
  PeakStatisticsExchange exchange;
  EXPECT_TRUE(same(exchange.read(), clearedPeakStatistics()));
  EXPECT_FALSE(exchange.takeResetRequest());
  EXPECT_EQ(clearedPeakStatistics()[3].mSamplePeak, converter::kMeterFloorDecibels);
}

TEST(PeakStatisticsExchange, ReadsTheBlockPublishedLastAnyNumberOfTimes) {
  PeakStatisticsExchange exchange;
  for (std::int64_t number = 1; number < 5; ++number) {
    exchange.publish(blockOf(number, -number));
    EXPECT_TRUE(same(exchange.read(), blockOf(number, -number)));
    EXPECT_TRUE(same(exchange.read(), blockOf(number, -number)));
  }
}

TEST(PeakStatisticsExchange, ReadsClearedStatisticsRightAfterARequest) {
  PeakStatisticsExchange exchange;
  exchange.publish(blockOf(7, 7));
  exchange.requestReset();
  EXPECT_TRUE(same(exchange.read(), clearedPeakStatistics()));
}

TEST(PeakStatisticsExchange, HidesABlockThatWasMeteredBeforeTheRequestWasTaken) {
  PeakStatisticsExchange exchange;
  exchange.requestReset();
  exchange.publish(blockOf(7, 7));
  EXPECT_TRUE(same(exchange.read(), clearedPeakStatistics()));
  EXPECT_TRUE(exchange.takeResetRequest());
  EXPECT_TRUE(same(exchange.read(), clearedPeakStatistics()));
  exchange.publish(blockOf(1, 1));
  EXPECT_TRUE(same(exchange.read(), blockOf(1, 1)));
}

TEST(PeakStatisticsExchange, TakesAnyNumberOfRequestsAsOne) {
  PeakStatisticsExchange exchange;
  exchange.requestReset();
  exchange.requestReset();
  EXPECT_TRUE(exchange.takeResetRequest());
  EXPECT_FALSE(exchange.takeResetRequest());
  exchange.publish(blockOf(2, 2));
  EXPECT_TRUE(same(exchange.read(), blockOf(2, 2)));
}

TEST(PeakStatisticsExchange, GivesEveryReaderWholeBlocksInOrderWhileItIsWritten) {
  PeakStatisticsExchange exchange;
  std::atomic<bool> done{false};
  const auto read = [&] {
    std::int64_t last = 0;
    bool finished = false;
    while (!finished) {
      finished = done.load();
      const PeakStatistics block = exchange.read();
      if (!isWhole(block) || block[0].mInterSampleClipCount < last) return false;
      last = block[0].mInterSampleClipCount;
    }
    return last == kRounds;
  };
  std::atomic<int> good{0};
  std::vector<std::thread> readers;
  readers.reserve(2);
  for (int i = 0; i < 2; ++i) readers.emplace_back([&] { good += read() ? 1 : 0; });
  for (std::int64_t number = 1; number <= kRounds; ++number) {
    exchange.publish(blockOf(number, number * 3));
  }
  done = true;
  for (std::thread& reader : readers) reader.join();
  EXPECT_EQ(good, 2);
}

TEST(PeakStatisticsExchange, NeverShowsAValueFromBeforeARequestToWhoeverMadeIt) {
  PeakStatisticsExchange exchange;
  std::atomic<std::int64_t> requests{0};
  std::atomic<bool> done{false};
  std::thread audio([&] {
    std::int64_t metered = 0;
    std::int64_t requestsTaken = 0;
    while (!done.load(std::memory_order_relaxed)) {
      if (exchange.takeResetRequest()) {
        requestsTaken = requests.load(std::memory_order_relaxed);
        metered = 0;
      }
      exchange.publish(blockOf(++metered % 1000, requestsTaken));
    }
  });
  bool whole = true;
  bool stale = false;
  for (std::int64_t request = 1; request <= kRounds; ++request) {
    requests.store(request, std::memory_order_relaxed);
    exchange.requestReset();
    for (int i = 0; i < 3; ++i) {
      const PeakStatistics block = exchange.read();
      whole = whole && isWhole(block);
      stale =
          stale || (!same(block, clearedPeakStatistics()) && block[0].mSampleClipCount < request);
    }
  }
  done = true;
  audio.join();
  EXPECT_TRUE(whole);
  EXPECT_FALSE(stale);
}
