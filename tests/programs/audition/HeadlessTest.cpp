#include <ebur128.h>
#include <gmock/gmock.h>
#include <signal.h>

#include <QImage>
#include <cmath>
#include <memory>
#include <nlohmann/json.hpp>
#include <set>
#include <thread>

#include "Program.h"
#include "Sound.h"
#include "ui/TemporaryFolder.h"

using Json = nlohmann::json;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::SizeIs;

namespace {

/// The meters' reading for silence.
constexpr double kFloorDb = -144;

class Headless : public testing::Test {
 protected:
  std::string path(const std::string& name) const { return (folder_ / name).string(); }
  /// Runs mix.wav with these options and `--json`; it must succeed and print nothing on standard
  /// error.
  Json measure(const std::vector<std::string>& options = {}) {
    std::vector<std::string> arguments = {"mix.wav", "--headless", "--json"};
    arguments.insert(arguments.end(), options.begin(), options.end());
    const auto outcome = Program(folder_.path()).run(arguments);
    EXPECT_EQ(outcome.status, 0);
    EXPECT_EQ(outcome.err, "");
    EXPECT_EQ(std::count(outcome.out.begin(), outcome.out.end(), '\n'), 1);
    return Json::parse(outcome.out, nullptr, false);
  }
  void mix(const Sound& sound) { writeSound(path("mix.wav"), sound); }

  TemporaryFolder folder_;
};

struct Peak {
  double sampleDb = 0;
  double trueDb = 0;
  std::int64_t clips = 0;
};

/// One channel's peaks according to the loudness library.
Peak peakOf(const Sound& sound, std::size_t channel) {
  struct Destroy {
    void operator()(ebur128_state* state) const { ebur128_destroy(&state); }
  };
  const std::unique_ptr<ebur128_state, Destroy> meter(
      ebur128_init(1, sound.sampleRate, EBUR128_MODE_TRUE_PEAK | EBUR128_MODE_SAMPLE_PEAK));
  auto samples = sound.planes.at(channel);
  Peak peak;
  for (const auto sample : samples) peak.clips += std::abs(sample) > 1.0F ? 1 : 0;
  // Room for the tail of its filter.
  samples.resize(samples.size() + 64);
  ebur128_add_frames_float(meter.get(), samples.data(), samples.size());
  double value = 0;
  ebur128_sample_peak(meter.get(), 0, &value);
  peak.sampleDb = 20 * std::log10(value);
  ebur128_true_peak(meter.get(), 0, &value);
  peak.trueDb = 20 * std::log10(value);
  return peak;
}

TEST_F(Headless, PrintsTheReadingsAsText) {
  mix(noise(48000, 2, 48000));
  const auto outcome = Program(folder_.path()).run({"mix.wav", "--headless"});
  EXPECT_EQ(outcome.status, 0);
  EXPECT_EQ(outcome.err, "");
  EXPECT_THAT(outcome.out, HasSubstr("Source    left"));
  EXPECT_THAT(outcome.out, HasSubstr("Encoded   right"));
}

TEST_F(Headless, TellsWhatWasMeasuredAndHow) {
  mix(noise(44100, 2, 44100 * 2));
  const auto json = measure();
  EXPECT_EQ(json["file"], "mix.wav");
  EXPECT_EQ(json["seconds"], 2.0);
  EXPECT_EQ(json["sample_rate_hz"], 44100);
  EXPECT_EQ(json["channels"], 2);
  EXPECT_EQ(json["monitor"], "encoded");
  EXPECT_GT(json["latency_samples"], 0);
  EXPECT_GT(json["bit_rate_kbps"], 0.0);
  EXPECT_EQ(json["source"].size(), 2U);
  EXPECT_EQ(json["encoded"].size(), 2U);
}

TEST_F(Headless, EncodesAsThePresetOrTheSettingSays) {
  mix(noise(48000, 2, 48000));
  const auto setting = [&](const char* option, const char* value) {
    return measure({option, value})["setting"];
  };
  EXPECT_EQ(setting("--preset", "128k"), Json::parse(R"({"format": "AAC", "strategy": "VBRC",
      "rate_kbps": 128, "quality": null})"));
  EXPECT_EQ(setting("--set", "he,vbrc,64"), Json::parse(R"({"format": "AAC HE",
      "strategy": "VBRC", "rate_kbps": 64, "quality": null})"));
  EXPECT_EQ(setting("--set", "aac,vbr,90"), Json::parse(R"({"format": "AAC", "strategy": "VBR",
      "rate_kbps": null, "quality": 90})"));
}

TEST_F(Headless, SpendsTheBitsThatItIsToldTo) {
  mix(noise(48000, 2, 48000 * 4));
  const auto low = measure({"--set", "aac,abr,64"})["bit_rate_kbps"].get<double>();
  const auto high = measure({"--set", "aac,abr,128"})["bit_rate_kbps"].get<double>();
  EXPECT_NEAR(low, 64, 8);
  EXPECT_NEAR(high, 128, 16);
}

TEST_F(Headless, GivesOneRecordPerSignalForMono) {
  mix(noise(48000, 1, 48000));
  const auto json = measure();
  EXPECT_EQ(json["channels"], 1);
  EXPECT_EQ(json["source"].size(), 1U);
  EXPECT_EQ(json["encoded"].size(), 1U);
}

TEST_F(Headless, RecordsTheSourceBitForBit) {
  const auto sound = noise(48000, 2, 48000 * 2 + 123, 0.8F);
  mix(sound);
  EXPECT_EQ(measure({"--monitor", "source", "--record", "out.wav"})["monitor"], "source");
  const auto recorded = readSound(path("out.wav"));
  EXPECT_EQ(recorded.sampleRate, 48000U);
  EXPECT_TRUE(recorded.planes == sound.planes);
}

TEST_F(Headless, RecordsTheEncodedSignalInStepWithTheSource) {
  for (const auto* const setting : {"aac,abr,128", "he,abr,64", "aac,vbr,60"}) {
    for (const std::size_t channels : {1U, 2U}) {
      const auto sound = noise(44100, channels, 44100 * 2 + 123, 0.8F);
      mix(sound);
      measure({"--monitor", "encoded", "--record", "out.wav", "--set", setting});
      const auto recorded = readSound(path("out.wav"));
      EXPECT_EQ(recorded.frames(), sound.frames());
      EXPECT_EQ(bestLag(sound, recorded, 300), 0) << setting;
      EXPECT_GT(largestDifference(sound, recorded), 1e-4F) << setting;
    }
  }
}

TEST_F(Headless, RecordsTheSameWhicheverDeviceIsNamed) {
  mix(noise(48000, 2, 48000));
  measure({"--record", "a.wav"});
  measure({"--record", "b.wav", "--device", "none", "--screenshot", "picture.png"});
  EXPECT_TRUE(readSound(path("a.wav")).planes == readSound(path("b.wav")).planes);
}

TEST_F(Headless, ReadsWhatALoudnessLibraryReadsInTheRecording) {
  mix(noise(48000, 2, 48000 * 3, 1.2F));
  for (const auto* const signal : {"source", "encoded"}) {
    const auto json = measure({"--monitor", signal, "--record", "out.wav", "--preset", "128k"});
    const auto recorded = readSound(path("out.wav"));
    for (std::size_t channel = 0; channel < 2; ++channel) {
      const auto& reading = json[signal][channel];
      const auto peak = peakOf(recorded, channel);
      EXPECT_NEAR(reading["sample_peak_dbfs"], peak.sampleDb, 0.001) << signal << channel;
      EXPECT_NEAR(reading["inter_sample_peak_dbtp"], peak.trueDb, 0.2) << signal << channel;
      EXPECT_EQ(reading["sample_clips"], peak.clips) << signal << channel;
    }
    EXPECT_GT(json[signal][0]["sample_clips"], 0);
  }
}

TEST_F(Headless, FindsThePeakBetweenSamples) {
  // A sine at a quarter of the sample rate, phase 45 degrees: 3 dB higher between the samples.
  auto sound = silence(48000, 1, 48000);
  for (std::size_t i = 0; i < 48000; ++i) {
    const auto fade =
        std::min({1.0, static_cast<double>(i) / 4800, static_cast<double>(48000 - i) / 4800});
    const auto wave = std::sin(std::acos(-1.0) * (static_cast<double>(i) / 2 + 0.25));
    sound.planes[0][i] = static_cast<float>(fade * wave * 0.9);
  }
  mix(sound);
  const auto json = measure();
  EXPECT_NEAR(json["source"][0]["sample_peak_dbfs"], -0.915 - 3.010, 0.01);
  EXPECT_NEAR(json["source"][0]["inter_sample_peak_dbtp"], -0.915, 0.1);
}

TEST_F(Headless, EndsAfterTheSecondsThatItIsGiven) {
  auto sound = noise(48000, 2, 48000 * 3, 0.25F);
  for (auto& plane : sound.planes) plane[60000] = 0.9F;
  mix(sound);
  const auto json = measure({"--seconds", "1.25", "--monitor", "source", "--record", "out.wav"});
  EXPECT_EQ(json["seconds"], 1.25);
  EXPECT_NEAR(json["source"][0]["sample_peak_dbfs"], -12.04, 0.01);
  auto expected = sound;
  for (auto& plane : expected.planes) plane.resize(60000);
  EXPECT_TRUE(readSound(path("out.wav")).planes == expected.planes);
  EXPECT_NEAR(measure({"--seconds", "1.26"})["source"][0]["sample_peak_dbfs"], -0.915, 0.001);
}

TEST_F(Headless, EndsWithTheFileWhenItIsGivenMoreSeconds) {
  mix(noise(48000, 2, 24000));
  EXPECT_EQ(measure({"--seconds", "60"})["seconds"], 0.5);
}

TEST_F(Headless, CountsTheVeryLastSample) {
  auto sound = silence(48000, 2, 48000 + 17);
  sound.planes[0].back() = 0.9F;
  sound.planes[1].back() = 1.1F;
  mix(sound);
  const auto json = measure({"--monitor", "source", "--record", "out.wav"});
  EXPECT_NEAR(json["source"][0]["sample_peak_dbfs"], -0.915, 0.001);
  EXPECT_GE(json["source"][0]["inter_sample_peak_dbtp"], -0.916);
  EXPECT_EQ(json["source"][1]["sample_clips"], 1);
  EXPECT_TRUE(readSound(path("out.wav")).planes == sound.planes);
}

TEST_F(Headless, HasNoPeaksForSilence) {
  mix(silence(48000, 2, 48000));
  const auto json = measure();
  for (const auto& channel : json["source"]) {
    EXPECT_EQ(channel["sample_peak_dbfs"], kFloorDb);
    EXPECT_EQ(channel["inter_sample_peak_dbtp"], kFloorDb);
    EXPECT_EQ(channel["sample_clips"], 0);
    EXPECT_EQ(channel["inter_sample_overs"], 0);
  }
}

TEST_F(Headless, MeasuresAFileOfOneSample) {
  auto sound = silence(44100, 2, 1);
  sound.planes[0][0] = 0.5F;
  mix(sound);
  const auto json = measure({"--record", "out.wav", "--monitor", "source"});
  EXPECT_NEAR(json["source"][0]["sample_peak_dbfs"], -6.02, 0.01);
  EXPECT_EQ(json["source"][1]["sample_peak_dbfs"], kFloorDb);
  EXPECT_TRUE(readSound(path("out.wav")).planes == sound.planes);
}

TEST_F(Headless, MeasuresFilesOfRatesThatTheConverterDoesNotDo) {
  const std::pair<std::uint32_t, std::uint32_t> rates[] = {{8000, 32000}, {384000, 192000}};
  for (const auto& [file, unit] : rates) {
    mix(sine(file, 2, file * 2, 1000));
    const auto json = measure({"--monitor", "source", "--record", "out.wav"});
    EXPECT_EQ(json["sample_rate_hz"], unit);
    EXPECT_EQ(json["seconds"], 2.0);
    const auto recorded = readSound(path("out.wav"));
    EXPECT_EQ(recorded.sampleRate, unit);
    EXPECT_EQ(recorded.frames(), unit * 2);
    EXPECT_EQ(bestLag(sine(unit, 2, unit * 2, 1000), recorded, 12), 0);
  }
}

TEST_F(Headless, PlaysTheChosenChannelsOfAFileThatHasMore) {
  const auto surround = noise(48000, 6, 48000);
  mix(surround);
  measure({"--channels", "5,2", "--monitor", "source", "--record", "out.wav"});
  EXPECT_TRUE(readSound(path("out.wav")).planes ==
              (std::vector{surround.planes[4], surround.planes[1]}));
}

TEST_F(Headless, PlaysWhatIsLeftOfACutOffFileAndSaysSoOnce) {
  const auto sound = noise(48000, 2, 48000 * 2);
  mix(sound);
  std::filesystem::resize_file(path("mix.wav"), std::filesystem::file_size(path("mix.wav")) / 2);
  const auto outcome =
      Program(folder_.path())
          .run({"mix.wav", "--headless", "--json", "--monitor", "source", "--record", "out.wav"});
  EXPECT_EQ(outcome.status, 0);
  ASSERT_THAT(outcome.complaints(), SizeIs(1)) << outcome.err;
  EXPECT_THAT(outcome.err, HasSubstr("warning: the file 'mix.wav' is damaged or cut off"));
  const auto recorded = readSound(path("out.wav"));
  EXPECT_NEAR(static_cast<double>(recorded.frames()), 48000, 10);
  EXPECT_EQ(largestDifference(recorded, sound), 0.0F);
  EXPECT_NEAR(Json::parse(outcome.out)["seconds"], 1.0, 0.001);
}

TEST_F(Headless, SaysWhatTheEncoderDoesWhereItCannotDoAsItIsTold) {
  mix(noise(48000, 1, 48000));
  const auto outcome =
      Program(folder_.path()).run({"mix.wav", "--headless", "--json", "--set", "he,abr,320"});
  EXPECT_EQ(outcome.status, 0);
  ASSERT_THAT(outcome.complaints(), SizeIs(1)) << outcome.err;
  EXPECT_THAT(outcome.err,
              HasSubstr("the encoder cannot do AAC HE ABR 320 kbit/s here and does AAC"));
  EXPECT_EQ(Json::parse(outcome.out)["setting"]["rate_kbps"], 320);
}

TEST_F(Headless, DrawsTheWindow) {
  mix(noise(48000, 2, 48000));
  measure({"--screenshot", "picture.png"});
  const QImage picture(QString::fromStdString(path("picture.png")), "PNG");
  ASSERT_FALSE(picture.isNull());
  EXPECT_GE(picture.width(), 560);
  EXPECT_GE(picture.height(), 195);
  std::set<QRgb> colors;
  int textRows = 0;
  for (int y = 0; y < picture.height(); ++y) {
    std::set<QRgb> row;
    for (int x = 0; x < picture.width(); ++x) row.insert(picture.pixel(x, y));
    if (row.size() > 8) ++textRows;
    colors.merge(row);
  }
  EXPECT_GT(colors.size(), 40U);
  EXPECT_GT(textRows, picture.height() / 8);
  EXPECT_THAT(folder_.names(), testing::UnorderedElementsAre("mix.wav", "picture.png"));
}

TEST_F(Headless, LeavesNothingBehindWhenItIsInterrupted) {
  writeSound(path("long.wav"), silence(32000, 1, 32000 * 300));
  Program program(folder_.path());
  const auto process = program.start({"long.wav", "--headless", "--record", "out.wav"});
  const auto isRecording = [&] {
    for (const auto& entry : std::filesystem::directory_iterator(folder_.path())) {
      std::error_code gone;
      if (entry.path().filename() != "long.wav" && entry.file_size(gone) > 100000) return true;
    }
    return false;
  };
  while (!isRecording()) std::this_thread::yield();
  ::kill(process, SIGTERM);
  const auto outcome = program.wait(process);
  EXPECT_EQ(outcome.status, 1);
  ASSERT_THAT(outcome.complaints(), SizeIs(1)) << outcome.err;
  EXPECT_THAT(outcome.err, HasSubstr("interrupted"));
  EXPECT_THAT(folder_.names(), ElementsAre("long.wav"));
}

TEST_F(Headless, HelpsOnRequest) {
  const auto outcome = Program(folder_.path()).run({"--help"});
  EXPECT_EQ(outcome.status, 0);
  EXPECT_THAT(outcome.out, HasSubstr("--headless"));
  EXPECT_EQ(outcome.err, "");
}

TEST_F(Headless, HasAWindowThatClosesByItselfWithoutIt) {
  mix(noise(48000, 2, 48000, 0.5F));
  const auto outcome = Program(folder_.path())
                           .run({"mix.wav", "--device", "none", "--seconds", "0.2", "--json",
                                 "--screenshot", "picture.png"});
  EXPECT_EQ(outcome.status, 0);
  EXPECT_EQ(outcome.err, "");
  EXPECT_EQ(Json::parse(outcome.out)["seconds"], 0.2);
  EXPECT_FALSE(QImage(QString::fromStdString(path("picture.png")), "PNG").isNull());
}

}  // namespace
