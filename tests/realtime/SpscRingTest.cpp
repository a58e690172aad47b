#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <cstdint>
#include <numeric>
#include <thread>
#include <vector>

#include "realtime/SpscRing.h"

namespace {

using realtime::SpscRing;

TEST(SpscRing, HandsOverItemsInPlaceAndInOrder) {
  SpscRing<int> ring(3);
  for (const int item : {1, 2, 3}) {
    int* const slot = ring.claim();
    ASSERT_NE(slot, nullptr);
    EXPECT_EQ(ring.claim(), slot) << "the same one until it is pushed";
    *slot = item;
    ring.push();
  }
  for (const int item : {1, 2, 3}) {
    ASSERT_NE(ring.front(), nullptr);
    EXPECT_EQ(*ring.front(), item);
    ring.pop();
  }
  EXPECT_EQ(ring.front(), nullptr);
}

TEST(SpscRing, HasNoSlotForTheWriterWhileItIsFull) {
  SpscRing<int> ring(2);
  ring.claim();
  ring.push();
  int* const last = ring.claim();
  ring.push();
  EXPECT_EQ(ring.claim(), nullptr);
  EXPECT_NE(ring.front(), last);
  ring.pop();
  EXPECT_NE(ring.claim(), nullptr);
}

TEST(SpscRing, KeepsWhatAnItemHoldsForItsNextUse) {
  SpscRing<std::vector<int>> ring(1);
  ring.claim()->assign(100, 7);
  const int* const storage = ring.claim()->data();
  ring.push();
  ring.pop();
  EXPECT_EQ(ring.claim()->data(), storage);
}

TEST(SpscRing, CountsWhatItHoldsAndWhatFits) {
  SpscRing<float> ring(10);
  const std::array<float, 10> samples{};
  std::array<float, 10> read{};
  const auto expect = [&](std::size_t readable) {
    EXPECT_EQ(ring.readable(), readable);
    EXPECT_EQ(ring.writable(), 10 - readable);
    EXPECT_EQ(ring.empty(), readable == 0);
  };
  expect(0);
  ring.write(samples.data(), 10);
  expect(10);
  ring.read(read.data(), 4);
  expect(6);
  ring.write(samples.data(), 1);
  expect(7);
  ring.read(read.data(), 7);
  expect(0);
}

TEST(SpscRing, CopiesManyItemsAcrossTheEndOfItsStorage) {
  for (std::size_t before = 0; before < 5; ++before) {
    SCOPED_TRACE(before);
    SpscRing<int> ring(5);
    std::vector<int> items(5);
    ring.write(items.data(), before);
    ring.read(items.data(), before);
    std::iota(items.begin(), items.end(), 1);
    ring.write(items.data(), 5);
    std::vector<int> read(5);
    ring.read(read.data(), 5);
    EXPECT_EQ(read, items);
  }
}

TEST(SpscRing, CopiesItemsOutThatWereFilledInPlace) {
  SpscRing<int> ring(4);
  for (const int item : {5, 6, 7}) {
    *ring.claim() = item;
    ring.push();
  }
  std::array<int, 2> read{};
  ring.read(read.data(), 2);
  EXPECT_EQ(read, (std::array{5, 6}));
  EXPECT_EQ(*ring.front(), 7);
}

TEST(SpscRing, IsEmptyAfterItWasCleared) {
  SpscRing<int> ring(4);
  std::array<int, 3> items = {1, 2, 3};
  ring.write(items.data(), 3);
  ring.read(items.data(), 1);
  ring.clear();
  EXPECT_TRUE(ring.empty());
  EXPECT_EQ(ring.front(), nullptr);
  EXPECT_EQ(ring.writable(), 4U);
}

TEST(SpscRing, HasRoomForOneItemAtLeast) {
  SpscRing<int> ring(0);
  ASSERT_NE(ring.claim(), nullptr);
  ring.push();
  EXPECT_EQ(ring.claim(), nullptr);
}

/// Every length from 1 to 17 and back to 1, not in order.
std::size_t nextLength(std::size_t length) {
  return length * 5 % 19 % 17 + 1;
}

constexpr std::uint32_t kItems = 300000;

TEST(SpscRing, LosesAndReordersNothingBetweenTwoThreads) {
  SpscRing<std::uint32_t> ring(24);
  std::thread writer([&] {
    std::array<std::uint32_t, 17> items{};
    std::size_t length = 1;
    for (std::uint32_t next = 0; next < kItems;) {
      const auto count = std::min({length, ring.writable(), std::size_t{kItems - next}});
      if (count == 0) std::this_thread::yield();
      std::iota(items.begin(), items.begin() + static_cast<std::ptrdiff_t>(count), next);
      ring.write(items.data(), count);
      next += static_cast<std::uint32_t>(count);
      length = nextLength(length);
    }
  });
  std::uint32_t expected = 0;
  std::uint32_t wrong = 0;
  std::array<std::uint32_t, 17> items{};
  for (std::size_t length = 3; expected < kItems; length = nextLength(length)) {
    const auto count = std::min(length, ring.readable());
    if (count == 0) std::this_thread::yield();
    ring.read(items.data(), count);
    for (std::size_t i = 0; i < count; ++i) wrong += items[i] != expected++ ? 1 : 0;
  }
  writer.join();
  EXPECT_EQ(wrong, 0U);
  EXPECT_TRUE(ring.empty());
}

TEST(SpscRing, NeverShowsAnItemInPlaceBeforeAllOfItIsWritten) {
  // Larger than any single store.
  using Block = std::array<std::uint32_t, 64>;
  SpscRing<Block> ring(4);
  constexpr std::uint32_t kBlocks = 30000;
  std::thread writer([&] {
    for (std::uint32_t number = 0; number < kBlocks;) {
      if (Block* const block = ring.claim()) {
        block->fill(number++);
        ring.push();
      } else {
        std::this_thread::yield();
      }
    }
  });
  std::uint32_t wrong = 0;
  for (std::uint32_t number = 0; number < kBlocks;) {
    if (const Block* const block = ring.front()) {
      for (const auto part : *block) wrong += part != number ? 1 : 0;
      ring.pop();
      ++number;
    } else {
      std::this_thread::yield();
    }
  }
  writer.join();
  EXPECT_EQ(wrong, 0U);
}

}  // namespace
