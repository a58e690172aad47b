#include <gtest/gtest.h>

#include <array>
#include <atomic>
#include <cmath>
#include <cstdlib>
#include <thread>

#include "DelayingUnit.h"
#include "MemorySource.h"
#include "Sound.h"
#include "host/playback/Player.h"

using host::Player;

namespace {

constexpr UInt32 latency = 1500;
constexpr std::uint32_t maximumFrames = 512;

/// Every sample tells its frame: (n + 1) / 65536 on the first channel, the negative on the second.
Sound ramp(std::size_t frames, std::size_t channels = 2) {
  auto sound = silence(48000, channels, frames);
  for (std::size_t channel = 0; channel < channels; ++channel) {
    for (std::size_t i = 0; i < frames; ++i) {
      const auto value = static_cast<float>(i + 1) / 65536;
      sound.planes[channel][i] = channel == 0 ? value : -value;
    }
  }
  return sound;
}

/// The frame that a sample of the ramp comes from; -1 for silence.
std::int64_t placeOf(float sample) {
  return std::lround(sample * 65536) - 1;
}

class Playing : public testing::Test {
 protected:
  void make(Sound sound, std::int64_t missing = 0) {
    unit_ = std::make_unique<DelayingUnit>(static_cast<UInt32>(sound.channels()), latency);
    player_ = std::make_unique<Player>(*unit_, maximumFrames,
                                       std::make_unique<MemorySource>(std::move(sound), missing));
    player_->setOffline(true);
  }
  /// The device's next block, first channel.
  std::vector<float> block(std::uint32_t frames) {
    std::vector<float> samples(std::size_t{frames} * 2, 99.0F);
    const std::array<float*, 2> planes = {samples.data(), samples.data() + frames};
    player_->renderBlock(planes.data(), frames);
    second_.assign(samples.begin() + frames, samples.end());
    samples.resize(frames);
    return samples;
  }
  std::vector<float> blocks(int count, std::uint32_t frames) {
    std::vector<float> all;
    for (int i = 0; i < count; ++i) {
      const auto next = block(frames);
      all.insert(all.end(), next.begin(), next.end());
    }
    return all;
  }
  Player& player() { return *player_; }

  std::unique_ptr<DelayingUnit> unit_;
  std::unique_ptr<Player> player_;
  std::vector<float> second_;
};

TEST_F(Playing, GivesSilenceBeforeItIsStarted) {
  make(ramp(4000));
  EXPECT_FALSE(player().isPlaying());
  EXPECT_EQ(block(256), std::vector<float>(256));
  EXPECT_EQ(player().position(), 0);
}

TEST_F(Playing, StartsWithTheVeryFirstFrame) {
  make(ramp(4000));
  player().play();
  EXPECT_TRUE(player().isPlaying());
  const auto heard = block(256);
  for (std::int64_t i = 0; i < 256; ++i) {
    ASSERT_EQ(placeOf(heard[static_cast<std::size_t>(i)]), i);
    ASSERT_EQ(second_[static_cast<std::size_t>(i)], -heard[static_cast<std::size_t>(i)]);
  }
  EXPECT_EQ(player().position(), 256);
}

TEST_F(Playing, GivesEveryFrameWhateverTheBlocks) {
  for (const std::uint32_t frames : {1U, 64U, 100U, 512U, 1000U, 5000U}) {
    make(ramp(4000));
    player().play();
    const auto heard = blocks(static_cast<int>(4000 / frames) + 1, frames);
    for (std::size_t i = 0; i < heard.size(); ++i) {
      ASSERT_EQ(placeOf(heard[i]), i < 4000 ? static_cast<std::int64_t>(i) : -1) << frames;
    }
    EXPECT_TRUE(player().isFinished());
    EXPECT_EQ(player().position(), 4000);
    EXPECT_EQ(player().missedFrames(), 0U);
  }
}

TEST_F(Playing, PlaysMono) {
  make(ramp(4000, 1));
  player().play();
  EXPECT_EQ(placeOf(block(100)[99]), 99);
  EXPECT_EQ(second_, std::vector<float>(100, 99.0F));
}

TEST_F(Playing, PlaysASourceShorterThanTheLatency) {
  make(ramp(1));
  player().play();
  const auto heard = block(64);
  EXPECT_EQ(placeOf(heard[0]), 0);
  EXPECT_EQ(placeOf(heard[1]), -1);
  EXPECT_TRUE(player().isFinished());
  EXPECT_EQ(player().position(), 1);
}

TEST_F(Playing, FadesOutOnPauseAndGoesOnFromThere) {
  make(ramp(40000));
  player().seek(20000);
  player().play();
  blocks(10, 256);
  player().pause();
  EXPECT_FALSE(player().isPlaying());
  const auto fading = blocks(2, 256);
  EXPECT_EQ(fading.back(), 0.0F);
  for (std::size_t i = 1; i < fading.size(); ++i) {
    ASSERT_LT(std::abs(fading[i] - fading[i - 1]), 0.01F) << i;
  }
  const auto paused = player().position();
  EXPECT_EQ(block(256), std::vector<float>(256));
  EXPECT_EQ(player().position(), paused);

  player().play();
  const auto heard = blocks(2, 256);
  EXPECT_LT(std::abs(heard[0]), 0.01F);
  EXPECT_EQ(placeOf(heard[511]), paused + 511);
}

TEST_F(Playing, ContinuesAtTheTargetOfASeek) {
  make(ramp(40000));
  player().play();
  blocks(4, 256);
  const auto resets = unit_->resets;
  player().seek(30000);
  EXPECT_EQ(unit_->resets, resets + 1);
  EXPECT_TRUE(player().isPlaying());
  EXPECT_EQ(player().position(), 30000);
  const auto heard = blocks(2, 256);
  EXPECT_LT(std::abs(heard[0]), 0.01F);
  EXPECT_EQ(placeOf(heard[511]), 30511);
  EXPECT_EQ(player().position(), 30512);
}

TEST_F(Playing, RunsTheUnitUpToThePlaceWithoutMeteringWhatNobodyHears) {
  make(ramp(40000));
  for (const std::int64_t place : {0, 1, 700, 1500, 30000}) {
    unit_->metered.clear();
    player().seek(place);
    EXPECT_TRUE(unit_->metered.empty());
    EXPECT_TRUE(unit_->metering);
    player().play();
    blocks(2, 256);
    ASSERT_EQ(unit_->metered.size(), 512U);
    EXPECT_EQ(placeOf(unit_->metered.front()), place);
    // The lead-in is as long as the unit's latency.
    EXPECT_EQ(placeOf(unit_->before[0]), std::max<std::int64_t>(place - latency, 0)) << place;
  }
}

TEST_F(Playing, StaysPausedAfterASeek) {
  make(ramp(40000));
  player().seek(30000);
  EXPECT_FALSE(player().isPlaying());
  EXPECT_EQ(block(256), std::vector<float>(256));
  EXPECT_EQ(player().position(), 30000);
}

TEST_F(Playing, ClampsAPlaceOutsideTheSource) {
  make(ramp(4000));
  player().seek(-5);
  EXPECT_EQ(player().position(), 0);
  player().seek(5000);
  EXPECT_EQ(player().position(), 4000);
  player().play();
  EXPECT_EQ(block(64), std::vector<float>(64));
  EXPECT_TRUE(player().isFinished());
}

TEST_F(Playing, StartsAgainFromTheBeginningAfterTheEnd) {
  make(ramp(1000));
  player().play();
  block(2000);
  EXPECT_FALSE(player().isPlaying());
  EXPECT_EQ(block(64), std::vector<float>(64));
  player().play();
  EXPECT_TRUE(player().isPlaying());
  EXPECT_EQ(placeOf(block(64)[63]), 63);
}

TEST_F(Playing, EndsAtItsLimit) {
  make(ramp(4000));
  player().limitLength(700);
  EXPECT_EQ(player().length(), 700);
  player().play();
  const auto heard = blocks(2, 512);
  EXPECT_EQ(placeOf(heard[699]), 699);
  EXPECT_EQ(placeOf(heard[700]), -1);
  EXPECT_TRUE(player().isFinished());
}

TEST_F(Playing, KeepsTheSourcesEndWhenTheLimitIsLater) {
  make(ramp(4000));
  player().limitLength(5000);
  EXPECT_EQ(player().length(), 4000);
}

TEST_F(Playing, EndsWhereASourceThatPromisedMoreReallyEnds) {
  make(ramp(3000), 10000);
  EXPECT_EQ(player().length(), 13000);
  player().play();
  const auto heard = blocks(20, 256);
  EXPECT_EQ(placeOf(heard[2999]), 2999);
  EXPECT_EQ(placeOf(heard[3000]), -1);
  EXPECT_TRUE(player().isFinished());
  EXPECT_EQ(player().length(), 3000);
  EXPECT_EQ(player().position(), 3000);
}

TEST_F(Playing, ShowsThePlaceThatIsHeardFromADeviceWithLatency) {
  make(ramp(40000));
  player().seek(10000);
  player().play();
  EXPECT_EQ(player().audiblePosition(600), 10000);
  blocks(2, 256);
  EXPECT_EQ(player().audiblePosition(600), 10000);
  block(256);
  EXPECT_EQ(player().audiblePosition(600), 10168);
}

TEST_F(Playing, ShowsTheLastFrameOnceTheDeviceHasRunDry) {
  make(ramp(1024));
  player().play();
  blocks(4, 256);
  EXPECT_EQ(player().audiblePosition(600), 424);
  blocks(2, 256);
  EXPECT_EQ(player().audiblePosition(600), 936);
  blocks(2, 256);
  EXPECT_EQ(player().audiblePosition(600), 1024);
}

TEST_F(Playing, ShowsThePlaceOfThePauseUntilWhatFollowsIsHeard) {
  make(ramp(40000));
  player().play();
  blocks(10, 256);
  player().pause();
  blocks(10, 256);
  const auto paused = player().position();
  EXPECT_EQ(player().audiblePosition(600), paused);
  player().play();
  block(256);
  EXPECT_EQ(player().audiblePosition(600), paused);
  blocks(2, 256);
  EXPECT_EQ(player().audiblePosition(600), paused + 168);
}

class Ear : public host::AudioTap {
 public:
  void hear(const float* const* planes, std::uint32_t frames) noexcept override {
    heard.insert(heard.end(), planes[0], planes[0] + frames);
  }
  std::vector<float> heard;
};

TEST_F(Playing, SendsTheTapWhatIsPlayedAndNoSilenceAroundIt) {
  Ear ear;
  make(ramp(1000));
  player().setTap(&ear);
  block(256);
  EXPECT_TRUE(ear.heard.empty());
  player().play();
  blocks(6, 256);
  ASSERT_EQ(ear.heard.size(), 1000U);
  EXPECT_EQ(placeOf(ear.heard.front()), 0);
  EXPECT_EQ(placeOf(ear.heard.back()), 999);
}

TEST_F(Playing, RendersTheUnitOfflineOnlyWhereItMay) {
  make(ramp(1000));
  EXPECT_TRUE(unit_->offline);
  player().setOffline(false);
  EXPECT_FALSE(unit_->offline);
  player().seek(10);
  EXPECT_FALSE(unit_->offline);
}

TEST_F(Playing, KeepsTheAudioThreadOutWhileItMoves) {
  make(ramp(60000));
  player().setOffline(false);
  player().setDeviceRuns(true);
  std::atomic<bool> stop = false;
  std::atomic<int> strange = 0;
  std::thread device([&] {
    while (!stop) {
      for (const auto sample : block(64)) {
        if (!(sample >= 0.0F && sample <= 1.0F)) ++strange;
      }
      std::this_thread::yield();
    }
  });
  for (int i = 0; i < 60; ++i) {
    player().play();
    player().seek(i * 977 % 60000);
    if (i % 3 == 0) player().pause();
    if (i % 7 == 0) player().limitLength(60000 - i);
  }
  player().setDeviceRuns(false);
  stop = true;
  device.join();
  EXPECT_EQ(strange, 0);
  EXPECT_LE(player().position(), player().length());
}

}  // namespace
