#include <gmock/gmock.h>
#include <sndfile.h>

#include <array>

#include "Sound.h"
#include "host/messages/Failure.h"
#include "host/playback/Recorder.h"
#include "ui/TemporaryFolder.h"

using host::AtomicFile;
using host::Recorder;
using testing::ElementsAre;
using testing::IsEmpty;

namespace {

void feed(Recorder& recorder, const Sound& sound, std::uint32_t block) {
  for (std::size_t begin = 0; begin < sound.frames(); begin += block) {
    const auto frames =
        static_cast<std::uint32_t>(std::min<std::size_t>(block, sound.frames() - begin));
    std::array<const float*, 2> planes{};
    for (std::size_t i = 0; i < sound.channels(); ++i) planes[i] = sound.planes[i].data() + begin;
    recorder.waitForRoom(frames);
    recorder.hear(planes.data(), frames);
  }
}

TEST(Recorder, WritesWhatItHearsToTheBit) {
  for (const std::size_t channels : {1U, 2U}) {
    const TemporaryFolder folder;
    const auto path = folder / "out.wav";
    const auto sound = noise(44100, channels, 44100 * 9 + 5, 1.4F);
    Recorder recorder(std::make_unique<AtomicFile>(path),
                      {44100, static_cast<std::uint32_t>(channels)});
    feed(recorder, sound, 1000);
    recorder.finish();

    EXPECT_THAT(folder.names(), ElementsAre("out.wav"));
    const auto written = readSound(path);
    EXPECT_EQ(written.sampleRate, 44100U);
    EXPECT_EQ(written.planes, sound.planes);
    SF_INFO info{};
    sf_close(sf_open(path.c_str(), SFM_READ, &info));
    EXPECT_EQ(info.format & SF_FORMAT_SUBMASK, SF_FORMAT_FLOAT);
    EXPECT_EQ(readBytes(path).substr(0, 4), "RIFF");
  }
}

TEST(Recorder, LeavesNothingBehindUnlessItIsFinished) {
  const TemporaryFolder folder;
  {
    Recorder recorder(std::make_unique<AtomicFile>(folder / "out.wav"), {48000, 2});
    feed(recorder, noise(48000, 2, 10000), 500);
  }
  EXPECT_THAT(folder.names(), IsEmpty());
}

TEST(Recorder, SaysThatFramesWereLost) {
  const TemporaryFolder folder;
  Recorder recorder(std::make_unique<AtomicFile>(folder / "out.wav"), {48000, 1});
  const auto sound = noise(48000, 1, 48000 * 100);
  const std::array<const float*, 1> planes = {sound.planes[0].data()};
  // Far more than it can take at once.
  recorder.hear(planes.data(), static_cast<std::uint32_t>(sound.frames()));
  EXPECT_THROW(recorder.finish(), host::Failure);
}

}  // namespace
