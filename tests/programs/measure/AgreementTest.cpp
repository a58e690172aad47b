#include <gmock/gmock.h>
#include <sndfile.h>

#include "Measured.h"
#include "Sound.h"
#include "ui/TemporaryFolder.h"

namespace {

/// What both programs print of one file and setting, letter for letter.
class Agreement : public testing::Test {
 protected:
  void expectTheSame(const std::vector<std::string>& options) {
    std::vector<std::string> measure = {"--json", "mix.wav"};
    measure.insert(measure.end(), options.begin(), options.end());
    auto audition = measure;
    audition.emplace_back("--headless");
    Program other(folder_.path());
    other.setExecutable(VELK_AUDITION_PROGRAM);
    const auto measured = Program(folder_.path()).run(measure);
    EXPECT_EQ(measured.status, 0) << measured.err;
    EXPECT_EQ(measured.out, other.run(audition).out);
  }

  TemporaryFolder folder_;
};

TEST_F(Agreement, IsExactForEveryPreset) {
  writeSound(folder_ / "mix.wav", noise(44100, 2, 44100 * 3, 1.1F));
  for (const auto* const preset : {"plus", "128k", "streaming", "high"}) {
    expectTheSame({"--preset", preset});
  }
}

TEST_F(Agreement, IsExactForSettingsRatesAndChannels) {
  writeSound(folder_ / "mix.wav", noise(48000, 1, 48000 + 777, 0.9F));
  expectTheSame({"--set", "aac,vbr,100"});
  writeSound(folder_ / "mix.wav", noise(22050, 2, 22050 + 1, 0.9F),
             SF_FORMAT_OGG | SF_FORMAT_VORBIS);
  expectTheSame({"--set", "hev2,abr,48"});
  writeSound(folder_ / "mix.wav", noise(192000, 4, 4096 * 16, 0.9F),
             SF_FORMAT_FLAC | SF_FORMAT_PCM_24);
  expectTheSame({"--set", "aac,abr,320", "--channels", "4,1"});
  writeSound(folder_ / "mix.wav", noise(176400, 2, 176400 + 1, 1.1F));
  expectTheSame({"--preset", "streaming"});
}

TEST_F(Agreement, IsExactForSilenceAndASingleSample) {
  writeSound(folder_ / "mix.wav", silence(48000, 2, 48000));
  expectTheSame({});
  auto one = silence(44100, 2, 1);
  one.planes[0][0] = 1.0F;
  writeSound(folder_ / "mix.wav", one);
  expectTheSame({});
}

TEST_F(Agreement, IsExactWhereTheWaveformOvershootsBehindTheLastSample) {
  auto sound = silence(48000, 1, 4096);
  for (std::size_t i = 4000; i < 4096; ++i) sound.planes[0][i] = 0.99F;
  writeSound(folder_ / "mix.wav", sound);
  expectTheSame({});
}

}  // namespace
