#include <gmock/gmock.h>

#include <cmath>

#include "FakeDevices.h"
#include "MemorySource.h"
#include "Sound.h"
#include "contract/ConverterInterface.h"
#include "converter/unit/ConverterUnit.h"
#include "host/files/ResampledSource.h"
#include "host/playback/Session.h"
#include "ui/TemporaryFolder.h"

using host::Session;

namespace {

/// A session of a second at 44.1 kHz that monitors the source.
class SessionAtADevice : public testing::Test {
 protected:
  SessionAtADevice() {
    writeSound(folder_ / "mix.wav", sound_);
    session_.emplace(host::openForPlaying(folder_ / "mix.wav"), devices_.open());
    writeProperty(&session_->unit(), velk::kConverterProperty_MonitorSource, 1);
    session_->player().setOffline(true);
    session_->player().seek(0);
  }

  TemporaryFolder folder_;
  const Sound sound_ = noise(44100, 2, 44100);
  FakeDevices devices_;
  std::optional<Session> session_;
};

TEST_F(SessionAtADevice, PlaysTheSamplesThemselvesWhereTheDeviceDoesTheRate) {
  session_->setDevice(FakeDevices::device("Fine", {44100, 48000}, 48000));
  EXPECT_EQ(devices_.format(), (host::AudioFormat{44100, 2}));
  EXPECT_EQ(session_->output()->sampleRate(), 44100U);
  EXPECT_EQ(session_->output()->latency(), FakeDevices::kLatency);
  session_->player().play();
  EXPECT_TRUE(devices_.play(44100).planes == sound_.planes);
}

TEST_F(SessionAtADevice, ConvertsToTheRateOfADeviceThatLacksTheFiles) {
  session_->setDevice(FakeDevices::device("Server", {48000}, 48000));
  EXPECT_EQ(devices_.format(), (host::AudioFormat{48000, 2}));
  EXPECT_EQ(session_->output()->name(), "Server");
  EXPECT_EQ(session_->output()->sampleRate(), 48000U);
  EXPECT_EQ(session_->device()->name, "Server");
  session_->player().play();
  const auto played = devices_.play(50000);
  host::ResampledSource expected(std::make_unique<MemorySource>(sound_), 48000);
  std::vector<float> interleaved(std::size_t{48000} * 2);
  ASSERT_EQ(expected.read(interleaved.data(), 48000), 48000U);
  auto converted = silence(48000, 2, 48000);
  for (std::size_t i = 0; i < interleaved.size(); ++i)
    converted.planes[i % 2][i / 2] = interleaved[i];
  // Both start on their own sample grids, a fraction of a sample apart.
  const auto lag = bestLag(converted, played, 1500);
  EXPECT_GT(lag, 0);
  double difference = 0;
  double power = 0;
  for (std::size_t i = 2000; i < 46000; ++i) {
    const auto one = static_cast<double>(converted.planes[1][i]);
    const auto other = static_cast<double>(played.planes[1][i + static_cast<std::size_t>(lag)]);
    difference += (one - other) * (one - other);
    power += one * one;
  }
  EXPECT_LT(10 * std::log10(difference / power), -20);
}

TEST_F(SessionAtADevice, ShowsThePlaceThatIsHeardWhereTheRateIsConverted) {
  session_->setDevice(FakeDevices::device("Server", {48000}));
  auto& player = session_->player();
  player.play();
  const auto heard = [&] { return player.audiblePosition(session_->output()->latency()); };
  devices_.play(24000);
  const auto middle = heard();
  // Half a second, less the resampler's delay and the device's 20 ms.
  EXPECT_LT(middle, 22050 - 882);
  EXPECT_GT(middle, 22050 - 882 - 2205);
  devices_.play(4800);
  EXPECT_NEAR(static_cast<double>(heard() - middle), 4410, 1);
  devices_.play(48000);
  EXPECT_TRUE(player.isFinished());
  EXPECT_EQ(player.position(), 44100);
  EXPECT_EQ(heard(), 44100);
}

TEST_F(SessionAtADevice, PlaysToTheFirstThatWorks) {
  const auto why = session_->setFirstWorkingDevice(
      {FakeDevices::device("Broken", {44100}), FakeDevices::device("Server", {48000})});
  EXPECT_TRUE(why.empty());
  EXPECT_EQ(session_->device()->name, "Server");
}

TEST_F(SessionAtADevice, GoesOnAtTheFilesRateWithoutADevice) {
  session_->setDevice(FakeDevices::device("Server", {48000}));
  session_->setDevice(std::nullopt);
  EXPECT_TRUE(session_->output()->isSilent());
  EXPECT_EQ(session_->output()->sampleRate(), 44100U);
}

TEST_F(SessionAtADevice, ConvertsTheNextFileToo) {
  session_->setDevice(FakeDevices::device("Server", {48000}));
  session_->load(host::openForPlaying(folder_ / "mix.wav"));
  EXPECT_EQ(session_->output()->sampleRate(), 48000U);
  session_->player().setOffline(true);
  session_->player().play();
  const auto played = devices_.play(24000);
  EXPECT_GT(*std::max_element(played.planes[0].begin(), played.planes[0].end()), 0.1F);
}

}  // namespace
