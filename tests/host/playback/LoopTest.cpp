#include <gmock/gmock.h>

#include <algorithm>
#include <array>
#include <cmath>
#include <memory>
#include <numbers>
#include <optional>
#include <vector>

#include "DelayingUnit.h"
#include "MemorySource.h"
#include "Sound.h"
#include "contract/ConverterInterface.h"
#include "host/playback/LoopingSource.h"
#include "host/playback/Player.h"
#include "host/unit/ConverterSetup.h"

using host::LoopingSource;
using host::LoopRange;
using host::Player;

namespace {

constexpr UInt32 kLatency = 1500;
constexpr std::uint32_t kMaximumFrames = 512;
constexpr auto kFade = static_cast<std::size_t>(LoopingSource::kFadeFrames);

std::size_t size(std::int64_t frames) {
  return static_cast<std::size_t>(frames);
}

/// A player of a sound in memory.
class Looping : public testing::Test {
 protected:
  void make(Sound sound, std::int64_t missing = 0) {
    unit_ = std::make_unique<DelayingUnit>(static_cast<UInt32>(sound.channels()), kLatency);
    play(sound, missing);
  }
  void makeReal(Sound sound) {
    unit_ = host::unitFor({sound.sampleRate, static_cast<std::uint32_t>(sound.channels())});
    play(sound, 0);
  }
  /// The next audio heard, first channel, rendered in blocks of that size.
  std::vector<float> listen(std::size_t frames, std::uint32_t block = 400) {
    std::vector<float> heard(frames);
    std::vector<float> second(block);
    for (std::size_t done = 0; done < frames;) {
      const auto count = std::min<std::size_t>(block, frames - done);
      const std::array<float*, 2> planes = {heard.data() + done, second.data()};
      player_->renderBlock(planes.data(), static_cast<std::uint32_t>(count));
      done += count;
    }
    return heard;
  }
  const std::vector<float>& source() const { return sound_.planes[0]; }
  Player& player() { return *player_; }

  std::unique_ptr<converter::ConverterUnit> unit_;
  Sound sound_;
  std::unique_ptr<Player> player_;

 private:
  void play(const Sound& sound, std::int64_t missing) {
    sound_ = sound;
    player_ = std::make_unique<Player>(*unit_, kMaximumFrames,
                                       std::make_unique<MemorySource>(sound, missing));
    player_->setOffline(true);
  }
};

float largestStep(const std::vector<float>& samples, std::size_t begin, std::size_t end) {
  float largest = 0;
  for (auto i = begin + 1; i < end; ++i) {
    largest = std::max(largest, std::abs(samples[i] - samples[i - 1]));
  }
  return largest;
}

TEST_F(Looping, GivesTheVeryFramesOfTheLoopButForTheJoinForAHundredRounds) {
  make(noise(48000, 2, 20000));
  const LoopRange loop = {3000, 7321};
  player().setLoop(loop);
  player().play();
  const auto n = size(loop.length());
  const auto heard = listen(100 * n);
  for (std::size_t round = 0; round < 100; ++round) {
    // The first frames of the first round fade in from silence.
    for (std::size_t i = round == 0 ? 300 : 0; i < n - kFade; ++i) {
      ASSERT_EQ(heard[round * n + i], source()[3000 + i]) << round << " " << i;
    }
  }
  EXPECT_EQ(player().position(), 3000);
  EXPECT_FALSE(player().isFinished());
  EXPECT_EQ(player().missedFrames(), 0U);
}

TEST_F(Looping, CrossFadesIntoWhatLiesBeforeTheLoopSoThatTheJoinIsNoStep) {
  make(noise(48000, 2, 200000));
  for (const LoopRange loop : {LoopRange{3000, 7321}, {100000, 180001}, {512, 1030}}) {
    player().setLoop(loop);
    player().play();
    const auto n = size(loop.length());
    const auto heard = listen(5 * n + 700);
    const auto allowed = largestStep(source(), size(loop.start) - kFade, size(loop.end));
    for (std::size_t round = 1; round < 5; ++round) {
      EXPECT_LE(largestStep(heard, round * n - kFade - 1, round * n + 2), allowed) << n;
      EXPECT_EQ(heard[round * n], source()[size(loop.start)]);
    }
  }
}

TEST_F(Looping, FadesOutAndInAgainWhereNothingLiesBeforeTheLoop) {
  make(noise(48000, 2, 20000));
  for (const LoopRange loop : {LoopRange{0, 20000}, {100, 9000}}) {
    player().setLoop(loop);
    player().seek(loop.start);
    player().play();
    const auto n = size(loop.length());
    const auto heard = listen(4 * n);
    const auto allowed = largestStep(source(), size(loop.start), size(loop.end));
    for (std::size_t round = 1; round < 4; ++round) {
      EXPECT_LE(largestStep(heard, round * n - kFade, round * n + kFade), allowed);
      EXPECT_LT(std::abs(heard[round * n]), 0.01F);
      for (std::size_t i = kFade; i < n - kFade; ++i) {
        ASSERT_EQ(heard[round * n + i], source()[size(loop.start) + i]);
      }
    }
  }
}

TEST_F(Looping, NeverExceedsTheSourceInAJoin) {
  auto sound = noise(48000, 1, 20000, 1.0F);
  for (auto& sample : sound.planes[0]) sample = sample < 0 ? -1.0F : 1.0F;
  make(sound);
  for (const LoopRange loop : {LoopRange{3000, 7000}, {0, 300}, {5000, 5100}}) {
    player().setLoop(loop);
    player().play();
    for (const auto sample : listen(20000)) ASSERT_LE(std::abs(sample), 1.0F);
  }
}

TEST_F(Looping, RepeatsLoopsShorterThanTheFadeAndThanTheLatency) {
  make(noise(48000, 2, 20000));
  for (const std::int64_t n : {1, 2, 3, 100, 511, 513, 1499}) {
    player().setLoop(LoopRange{5000, 5000 + n});
    player().seek(5000);
    player().play();
    const auto heard = listen(100 * size(n) + 4000, 333);
    EXPECT_EQ(player().position(), 5000 + (100 * n + 4000) % n);
    for (auto i = size(2 * n + 300); i < heard.size(); ++i) {
      ASSERT_EQ(heard[i], heard[i - size(n)]) << n << " " << i;
    }
    const auto allowed = largestStep(source(), 5000 - size(n), 5000 + size(n) + 1) +
                         2 * 0.5F / static_cast<float>(n);
    EXPECT_LE(largestStep(heard, 1000, heard.size()), allowed) << n;
  }
}

TEST_F(Looping, ShowsThePlaceThatIsHeardInEveryRound) {
  make(noise(48000, 2, 20000));
  player().setLoop(LoopRange{3000, 5000});
  player().play();
  listen(1999);
  EXPECT_EQ(player().position(), 4999);
  listen(1);
  EXPECT_EQ(player().position(), 3000);
  EXPECT_EQ(player().audiblePosition(600), 4400);
  listen(700);
  EXPECT_EQ(player().position(), 3700);
  EXPECT_EQ(player().audiblePosition(600), 3100);
}

TEST_F(Looping, RunsIntoTheLoopFromBeforeAndOnFromAfterIt) {
  make(noise(48000, 2, 20000));
  player().setLoop(LoopRange{3000, 5000});
  player().seek(1000);
  player().play();
  const auto heard = listen(4100);
  EXPECT_EQ(heard[3000], source()[4000 - 1000 + 1000]);
  EXPECT_EQ(heard[4050], source()[3050]);
  EXPECT_EQ(player().position(), 3100);
  player().seek(6000);
  EXPECT_EQ(listen(14000)[13999], source()[19999]);
  EXPECT_TRUE(player().isFinished());
}

TEST_F(Looping, MovesIntoALoopThatIsElsewhereAndStaysWhereItIsInside) {
  make(noise(48000, 2, 20000));
  player().seek(10000);
  player().setLoop(LoopRange{3000, 5000});
  EXPECT_EQ(player().position(), 3000);
  player().seek(4500);
  player().setLoop(LoopRange{4000, 5000});
  EXPECT_EQ(player().position(), 4500);
  EXPECT_FALSE(player().isPlaying());
}

TEST_F(Looping, GoesOnFromWhereItIsWithoutTheLoop) {
  make(noise(48000, 2, 20000));
  player().setLoop(LoopRange{3000, 5000});
  player().play();
  listen(3000);
  player().setLoop(std::nullopt);
  EXPECT_TRUE(player().isPlaying());
  EXPECT_EQ(player().position(), 4000);
  const auto heard = listen(16000);
  EXPECT_EQ(heard[15999], source()[19999]);
  EXPECT_TRUE(player().isFinished());
}

TEST_F(Looping, StaysAtTheEndWhenTheLoopIsTakenAway) {
  make(noise(48000, 2, 20000));
  player().setLoop(LoopRange{3000, 5000});
  player().seek(6000);
  player().play();
  listen(15000);
  ASSERT_TRUE(player().isFinished());
  player().setLoop(std::nullopt);
  EXPECT_TRUE(player().isFinished());
}

TEST_F(Looping, CutsALoopToTheSourceAndRefusesAnEmptyOne) {
  make(noise(48000, 2, 20000));
  player().setLoop(LoopRange{-100, 90000});
  EXPECT_EQ(player().loop(), (LoopRange{0, 20000}));
  player().setLoop(LoopRange{500, 500});
  EXPECT_EQ(player().loop(), std::nullopt);
  player().setLoop(LoopRange{20000, 30000});
  EXPECT_EQ(player().loop(), std::nullopt);
}

TEST_F(Looping, EndsWhereASourceThatPromisedMoreReallyEnds) {
  make(noise(48000, 2, 5000), 10000);
  player().setLoop(LoopRange{3000, 9000});
  player().play();
  const auto heard = listen(9000);
  EXPECT_EQ(heard[1999], source()[4999]);
  EXPECT_EQ(heard[2000], 0.0F);
  EXPECT_TRUE(player().isFinished());
  EXPECT_EQ(player().length(), 5000);
}

TEST_F(Looping, JoinsTheEncodedSignalWithoutAStepToo) {
  makeReal(sine(48000, 2, 48000, 997));
  player().setLoop(LoopRange{12011, 29003});
  player().play();
  const auto n = size(16992);
  const auto heard = listen(6 * n);
  // The codec itself deviates this much from the sine's largest step anywhere.
  const auto allowed = largestStep(heard, 2000, n - 3000);
  for (std::size_t round = 1; round < 6; ++round) {
    EXPECT_LE(largestStep(heard, round * n - 2000, round * n + 2000), allowed * 1.02F);
  }
}

TEST_F(Looping, RepeatsWhatIsHeardOfTheEncodedSignalInStepWithTheSource) {
  makeReal(noise(48000, 2, 48000));
  player().setLoop(LoopRange{12011, 20003});
  player().play();
  const std::size_t n = 7992;
  const auto encoded = listen(4 * n);
  Sound heard = silence(48000, 1, 4 * n);
  heard.planes[0] = encoded;
  Sound expected = silence(48000, 1, 4 * n);
  for (std::size_t i = 0; i < 4 * n; ++i) expected.planes[0][i] = source()[12011 + i % n];
  EXPECT_EQ(bestLag(expected, heard, 300), 0);
}

}  // namespace
