#include <gmock/gmock.h>

#include <atomic>
#include <thread>

#include "Sound.h"
#include "host/messages/Failure.h"
#include "host/playback/Session.h"
#include "ui/TemporaryFolder.h"

using host::Session;
using testing::HasSubstr;

namespace {

class SessionOfAFile : public testing::Test {
 protected:
  SessionOfAFile() {
    writeSound(folder_ / "mix.wav", noise(48000, 2, 9600));
    session_.emplace(host::openForPlaying(folder_ / "mix.wav"));
  }
  /// A device that no sound system knows.
  static host::Device ghost() {
    host::Device device;
    device.name = "Ghost";
    device.index = 1000;
    device.channels = 2;
    device.sampleRates = {44100, 48000};
    return device;
  }
  void waitForTheEnd() {
    while (!session_->player().isFinished()) std::this_thread::yield();
  }

  TemporaryFolder folder_;
  std::optional<Session> session_;
};

TEST_F(SessionOfAFile, PlaysSilentlyInRealTime) {
  session_->setDevice(std::nullopt);
  ASSERT_NE(session_->output(), nullptr);
  EXPECT_TRUE(session_->output()->isSilent());
  const auto begin = std::chrono::steady_clock::now();
  session_->player().play();
  waitForTheEnd();
  const auto lasted = std::chrono::steady_clock::now() - begin;
  EXPECT_EQ(session_->player().position(), 9600);
  // A fifth of a second, less what is rendered ahead.
  EXPECT_GT(lasted, std::chrono::milliseconds(150));
  EXPECT_EQ(session_->checkOutput().english(), "");
}

TEST_F(SessionOfAFile, GoesOnWithoutADeviceThatCannotBeOpened) {
  EXPECT_THROW(session_->setDevice(ghost()), host::Failure);
  ASSERT_NE(session_->output(), nullptr);
  EXPECT_TRUE(session_->output()->isSilent());
  EXPECT_FALSE(session_->device());
  session_->player().play();
  waitForTheEnd();
}

TEST_F(SessionOfAFile, TellsWhyNoDeviceWorks) {
  const auto why = session_->setFirstWorkingDevice({ghost(), ghost()});
  EXPECT_THAT(why.english(), HasSubstr("'Ghost'"));
  EXPECT_TRUE(session_->output()->isSilent());
  EXPECT_EQ(session_->setFirstWorkingDevice({}).english(), "");
  EXPECT_TRUE(session_->output()->isSilent());
}

TEST_F(SessionOfAFile, TakesOnlyFilesOfItsOwnFormat) {
  writeSound(folder_ / "mono.wav", noise(48000, 1, 480));
  writeSound(folder_ / "slow.wav", noise(44100, 2, 480));
  writeSound(folder_ / "fast.wav", noise(192000, 2, 480));
  const auto canLoad = [&](const char* name) {
    return session_->canLoad(host::openForPlaying(folder_ / name));
  };
  EXPECT_TRUE(canLoad("mix.wav"));
  EXPECT_FALSE(canLoad("mono.wav"));
  EXPECT_FALSE(canLoad("slow.wav"));
  EXPECT_FALSE(canLoad("fast.wav"));
}

TEST_F(SessionOfAFile, KeepsPlayingToTheSameWhenItLoadsAnotherFile) {
  writeSound(folder_ / "other.wav", noise(48000, 2, 4800));
  session_->setDevice(std::nullopt);
  session_->player().play();
  session_->load(host::openForPlaying(folder_ / "other.wav"));
  ASSERT_NE(session_->output(), nullptr);
  EXPECT_FALSE(session_->player().isPlaying());
  session_->player().play();
  waitForTheEnd();
  EXPECT_EQ(session_->player().position(), 4800);
}

TEST_F(SessionOfAFile, MovesWhileItPlays) {
  session_->setDevice(std::nullopt);
  session_->player().play();
  for (int i = 0; i < 20; ++i) session_->player().seek((i * 997) % 9000);
  EXPECT_TRUE(session_->player().isPlaying());
  waitForTheEnd();
  EXPECT_EQ(session_->player().position(), 9600);
}

}  // namespace
