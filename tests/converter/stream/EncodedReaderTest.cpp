#include <gtest/gtest.h>

#include <utility>
#include <vector>

#include "converter/stream/EncodedReader.h"

namespace {

using converter::AudioBlock;
using converter::kBlockFrames;
using converter::Position;
using converter::Soundness;
using converter::Stretch;

/// The test plays the worker's part; the worker's thread is never started.
class Reader : public testing::Test {
 protected:
  /// Delivers a block whose samples are their positions plus one.
  void deliver(Position position, Position validFrom) {
    AudioBlock* block = worker_.encoded().claim();
    ASSERT_NE(block, nullptr);
    block->position = position;
    block->validFrom = validFrom;
    block->unsound = 0;
    for (std::size_t i = 0; i < kBlockFrames; ++i) {
      block->planes[0][i] = static_cast<float>(position + static_cast<Position>(i) + 1);
    }
    worker_.encoded().push();
  }
  void deliver(Position position) { deliver(position, position); }

  /// Reads up to `end`; 0 stands for silence.
  UInt32 readTo(Position end) {
    std::vector<float> samples(static_cast<std::size_t>(end - position_), 99);
    float* planes[] = {samples.data()};
    const auto stretches = reader_.read(position_, static_cast<UInt32>(samples.size()), planes, 1,
                                        converter::Patience::none());
    output_.insert(output_.end(), samples.begin(), samples.end());
    position_ = end;
    read_.assign(stretches.begin(), stretches.end());
    return missingIn(read_);
  }

  static UInt32 missingIn(const std::vector<Stretch>& stretches) {
    std::size_t missing = 0;
    for (const auto& stretch : stretches) {
      if (stretch.soundness == Soundness::missing) missing += stretch.frames;
    }
    return static_cast<UInt32>(missing);
  }

  void expectSignal(Position begin, Position end, bool isThere) {
    for (Position i = begin; i < end; ++i) {
      ASSERT_EQ(output_[static_cast<std::size_t>(i - kStart)],
                isThere ? static_cast<float>(i + 1) : 0.0F)
          << i;
    }
  }

  static constexpr Position kStart = -3000;

  converter::Worker worker_{{.sampleRate = 44100, .channels = 1, .maximumFrames = 512}, 8};
  converter::EncodedReader reader_{worker_, 16384};
  Position position_ = kStart;
  std::vector<float> output_;
  /// What the last read was made of.
  std::vector<Stretch> read_;
};

TEST_F(Reader, DoesNotWaitWithoutAWorker) {
  // Work is waiting, but no thread does it.
  ASSERT_NE(worker_.source().claim(), nullptr);
  worker_.source().push();
  std::vector<float> samples(100, 99);
  float* planes[] = {samples.data()};
  const auto stretches = reader_.read(0, 100, planes, 1, converter::Patience::endless());
  EXPECT_EQ(missingIn({stretches.begin(), stretches.end()}), 100U);
  EXPECT_EQ(samples, std::vector<float>(100, 0.0F));
}

TEST_F(Reader, DoesNotMissWhatIsBeforeTheFirstSample) {
  EXPECT_EQ(readTo(0), 0U);
  expectSignal(kStart, 0, false);
}

TEST_F(Reader, TakesBlocksByTheirPositions) {
  deliver(-962, 0);
  deliver(1086);
  EXPECT_EQ(readTo(700), 0U);
  EXPECT_EQ(readTo(3134), 0U);
  expectSignal(kStart, 0, false);
  expectSignal(0, 3134, true);
}

TEST_F(Reader, CountsWhatHasNotArrived) {
  deliver(-962, 0);
  EXPECT_EQ(readTo(1500), 414U);
  expectSignal(0, 1086, true);
  expectSignal(1086, 1500, false);
}

TEST_F(Reader, DropsWhatArrivesTooLateAndKeepsTheRestInPlace) {
  EXPECT_EQ(readTo(1500), 1500U);
  deliver(-962, 0);
  deliver(1086);
  EXPECT_EQ(readTo(3134), 0U);
  expectSignal(0, 1500, false);
  expectSignal(1500, 3134, true);
}

TEST_F(Reader, CountsAGapBetweenTwoBlocks) {
  deliver(-962, 0);
  deliver(9278);
  EXPECT_EQ(readTo(10000), 9278U - 1086U);
  expectSignal(0, 1086, true);
  expectSignal(1086, 9278, false);
  expectSignal(9278, 10000, true);
}

TEST_F(Reader, CountsTheMissingStartOfABlock) {
  deliver(-962, 0);
  deliver(1086, 3134);
  deliver(3134, 4000);
  EXPECT_EQ(readTo(5000), 4000U - 1086U);
  expectSignal(1086, 4000, false);
  expectSignal(4000, 5000, true);
}

TEST_F(Reader, TellsInGrainsWhatIsUnsound) {
  AudioBlock* block = worker_.encoded().claim();
  ASSERT_NE(block, nullptr);
  block->position = 0;
  block->validFrom = 100;
  block->unsound = 0;
  // From within one grain into another, and beyond the block.
  block->markUnsound(200, 230);
  block->markUnsound(2000, 5000);
  block->markUnsound(-500, 10);
  // Nothing at all, and nothing here.
  block->markUnsound(1000, 1000);
  block->markUnsound(-500, 0);
  block->markUnsound(3000, 4000);
  worker_.encoded().push();
  readTo(0);
  readTo(3000);
  const auto expected = std::vector<std::pair<std::size_t, Soundness>>{
      {100, Soundness::missing}, {92, Soundness::sound},   {64, Soundness::unsound},
      {1728, Soundness::sound},  {64, Soundness::unsound}, {952, Soundness::missing}};
  ASSERT_EQ(read_.size(), expected.size());
  for (std::size_t i = 0; i < expected.size(); ++i) {
    EXPECT_EQ(read_[i].frames, expected[i].first) << i;
    EXPECT_EQ(read_[i].soundness, expected[i].second) << i;
  }
}

}  // namespace
