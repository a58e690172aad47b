#include <gmock/gmock.h>

#include <cmath>
#include <cstdio>
#include <memory>

#include "Measured.h"
#include "MemorySource.h"
#include "Sound.h"
#include "host/files/ResampledSource.h"
#include "ui/TemporaryFolder.h"

using nlohmann::json;
using testing::HasSubstr;
using testing::UnorderedElementsAre;

namespace {

std::string outputOf(const std::string& command) {
  const std::unique_ptr<FILE, int (*)(FILE*)> pipe(::popen(command.c_str(), "r"), ::pclose);
  std::string text;
  char buffer[4096];
  while (pipe) {
    const auto got = std::fread(buffer, 1, sizeof buffer, pipe.get());
    if (got == 0) break;
    text.append(buffer, got);
  }
  return text;
}

/// What a player is to play of a track.
struct Edit {
  double startSeconds;
  double seconds;
};

/// The one edit of a file with one track (ISO/IEC 14496-12, 8.2.2, 8.4.2 and 8.6.6, all in version
/// 0).
Edit editOf(const std::filesystem::path& file) {
  const auto bytes = readBytes(file);
  const auto wordOf = [&](const std::string& box, std::size_t index) {
    const auto content = bytes.find(box) + box.size() + 4 * index;
    double number = 0;
    for (std::size_t i = content; i < content + 4; ++i) {
      number = number * 256 + static_cast<unsigned char>(bytes.at(i));
    }
    return number;
  };
  EXPECT_EQ(wordOf("elst", 1), 1);
  return {wordOf("elst", 3) / wordOf("mdhd", 3), wordOf("elst", 2) / wordOf("mvhd", 3)};
}

struct Case {
  const char* name;
  const char* setting;
  std::uint32_t sampleRate;
  std::size_t channels;

  bool isHighEfficiency() const { return std::string(name).starts_with("he"); }
  /// AAC knows no rate above 96 kHz.
  std::uint32_t codecRate() const { return sampleRate > 96000 ? sampleRate / 2 : sampleRate; }
  /// The source's length at that rate.
  std::size_t codecFrames(std::size_t frames) const {
    return sampleRate > 96000 ? (frames + 1) / 2 : frames;
  }
};

/// As long as the sound says, which may be less than it holds.
Sound resampled(Sound sound, std::uint32_t sampleRate, std::size_t frames) {
  const auto source =
      host::atSampleRate(std::make_unique<MemorySource>(std::move(sound)), sampleRate);
  auto result = silence(sampleRate, source->format().channels, frames);
  std::vector<float> interleaved(frames * result.channels());
  EXPECT_EQ(source->read(interleaved.data(), frames), frames);
  for (std::size_t i = 0; i < interleaved.size(); ++i) {
    result.planes[i % result.channels()][i / result.channels()] = interleaved[i];
  }
  return result;
}

class BitStream : public testing::TestWithParam<Case> {
 protected:
  std::string file() const {
    return (folder_ / "out").string() + "/mix." + GetParam().name + ".m4a";
  }
  json measure(const Sound& sound, const std::vector<std::string>& options = {}) {
    writeSound(folder_ / "mix.wav", sound);
    std::vector<std::string> arguments = {"--json",           "--m4a",  "out", "--set",
                                          GetParam().setting, "mix.wav"};
    arguments.insert(arguments.end(), options.begin(), options.end());
    const auto outcome = Program(folder_.path()).run(arguments);
    EXPECT_EQ(outcome.status, 0);
    EXPECT_EQ(outcome.err, "");
    return rows(outcome).at(0);
  }
  /// Decoded by ffmpeg, and cut as the file's edit list says, to the end of the source at its rate.
  /// ffmpeg is not left to cut, because its versions disagree where band replication doubles the
  /// rate.
  Sound decoded(std::size_t frames) {
    const auto wave = (folder_ / "decoded.wav").string();
    EXPECT_EQ(outputOf("ffmpeg -nostdin -v error -y -ignore_editlist 1 -i '" + file() +
                       "' -c:a pcm_f32le '" + wave + "' 2>&1"),
              "");
    auto sound = readSound(wave);
    EXPECT_EQ(sound.sampleRate, GetParam().codecRate());
    const auto edit = editOf(file());
    const auto start = edit.startSeconds * sound.sampleRate;
    EXPECT_NEAR(start, std::round(start), 1e-6);
    const auto source = static_cast<double>(GetParam().codecFrames(frames));
    EXPECT_GT(edit.seconds * sound.sampleRate, source - 1e-6);
    EXPECT_LT(edit.seconds * sound.sampleRate, source + 2);
    EXPECT_GE(static_cast<double>(sound.frames()), start + source);
    for (auto& plane : sound.planes) {
      plane.erase(plane.begin(), plane.begin() + std::lround(start));
    }
    return resampled(std::move(sound), GetParam().sampleRate, frames);
  }

  TemporaryFolder folder_;
};

TEST_P(BitStream, IsFoundGoodByAProbe) {
  const auto [name, setting, rate, channels] = GetParam();
  measure(noise(rate, channels, rate * 2 + 123, 0.5F));
  const auto probe = json::parse(
      outputOf("ffprobe -v error -show_streams -show_format -of json '" + file() + "' 2>&1"),
      nullptr, false);
  ASSERT_TRUE(probe.is_object());
  const auto& stream = probe["streams"][0];
  EXPECT_EQ(stream["codec_name"], "aac");
  EXPECT_EQ(stream["sample_rate"], std::to_string(GetParam().codecRate()));
  // A decoder of band replication allows for stereo that a later unit may bring.
  const bool isHighEfficiency = GetParam().isHighEfficiency();
  EXPECT_EQ(stream["channels"], isHighEfficiency ? 2U : channels);
  EXPECT_EQ(stream["start_pts"], 0);
  EXPECT_THAT(stream["profile"].get<std::string>(), HasSubstr(isHighEfficiency ? "HE-AAC" : "LC"));
  // To the sample of the track, which counts every other one where band replication is used.
  EXPECT_NEAR(std::stod(stream["duration"].get<std::string>()), (rate * 2 + 123.0) / rate,
              2.0 / GetParam().codecRate());
}

TEST_P(BitStream, DecodesToThePeaksThatAreReported) {
  const auto [name, setting, rate, channels] = GetParam();
  const auto sound = noise(rate, channels, rate * 3 + 77, 1.6F);
  const auto row = measure(sound);
  const auto again = decoded(sound.frames());
  ASSERT_GE(again.channels(), channels);
  for (std::size_t channel = 0; channel < channels; ++channel) {
    double peak = 0;
    std::int64_t clips = 0;
    for (const auto sample : again.planes[channel]) {
      peak = std::max(peak, std::abs(static_cast<double>(sample)));
      clips += std::abs(sample) > 1.0F ? 1 : 0;
    }
    EXPECT_NEAR(row["encoded"][channel]["sample_peak_dbfs"], 20 * std::log10(peak), 0.001);
    // The unit's filter and the test's need not agree about a sample at full scale.
    EXPECT_LE(std::abs(row["encoded"][channel]["sample_clips"].get<std::int64_t>() - clips),
              rate > 96000 ? 2 : 0);
    EXPECT_GT(clips, 0);
  }
}

TEST_P(BitStream, PlaysFromTheFirstFrameOn) {
  const auto [name, setting, rate, channels] = GetParam();
  const auto sound = noise(rate, channels, rate * 2, 0.5F);
  measure(sound);
  const auto lag = bestLag(sound, decoded(sound.frames()), 300);
  // Parametric stereo lies half a sample before the source, however it is aligned.
  EXPECT_LE(lag, 0);
  EXPECT_GE(lag, std::string(name).starts_with("hev2") ? -1 : 0);
}

TEST_P(BitStream, HoldsTheBitsThatAreReported) {
  const auto [name, setting, rate, channels] = GetParam();
  const std::size_t seconds = rate > 96000 ? 10 : 20;
  const auto row = measure(noise(rate, channels, rate * seconds, 0.5F));
  const auto sizes =
      outputOf("ffprobe -v error -show_entries packet=size -of csv=p=0 '" + file() + "' 2>&1");
  std::istringstream lines(sizes);
  double bits = 0;
  for (std::string line; std::getline(lines, line);) {
    // Lines of other things have no number.
    bits += 8 * std::strtod(line.c_str(), nullptr);
  }
  // The reported rate includes the silence of the latency.
  EXPECT_NEAR(bits / static_cast<double>(seconds) / 1000 / row["bit_rate_kbps"].get<double>(), 1.0,
              0.03);
}

INSTANTIATE_TEST_SUITE_P(M4a, BitStream,
                         testing::Values(Case{"aac-vbrc-256", "aac,vbrc,256", 44100, 2},
                                         Case{"aac-abr-64", "aac,abr,64", 48000, 1},
                                         Case{"he-abr-64", "he,abr,64", 44100, 2},
                                         Case{"he-vbr-60", "he,vbr,60", 48000, 1},
                                         Case{"hev2-abr-48", "hev2,abr,48", 44100, 2},
                                         Case{"aac-vbrc-256", "aac,vbrc,256", 192000, 2},
                                         Case{"he-abr-64", "he,abr,64", 176400, 2}),
                         [](const auto& test) {
                           auto name = test.param.name + std::string("-at-") +
                                       std::to_string(test.param.sampleRate);
                           std::replace(name.begin(), name.end(), '-', '_');
                           return name;
                         });

TEST(BitStreams, AreThoseOfTheReducedFileWhenATrimIsFound) {
  const TemporaryFolder folder;
  writeSound(folder / "mix.wav", noise(44100, 2, 44100, 1.0F));
  const auto row =
      rows(Program(folder.path()).run({"--json", "--find-trim", "--m4a", "out", "mix.wav"})).at(0);
  const auto wave = (folder / "decoded.wav").string();
  outputOf("ffmpeg -nostdin -v error -i '" + (folder / "out/mix.aac-vbrc-256.m4a").string() +
           "' -c:a pcm_f32le '" + wave + "'");
  auto sound = readSound(wave);
  sound.planes[0].resize(44100);
  double peak = 0;
  for (const auto sample : sound.planes[0]) peak = std::max(peak, std::abs(double{sample}));
  EXPECT_LE(peak, 1);
  EXPECT_NEAR(row["encoded"][0]["sample_peak_dbfs"], 20 * std::log10(peak), 0.001);
}

TEST(BitStreams, AreTheSameEveryTime) {
  const TemporaryFolder folder;
  writeSound(folder / "mix.wav", noise(44100, 2, 44100));
  for (const auto* const out : {"a", "b"}) {
    EXPECT_EQ(Program(folder.path()).run({"--m4a", out, "mix.wav"}).status, 0);
  }
  EXPECT_EQ(readBytes(folder / "a/mix.aac-vbrc-256.m4a"),
            readBytes(folder / "b/mix.aac-vbrc-256.m4a"));
}

TEST(BitStreams, HaveNamesOfTheirOwnForFilesThatShareOne) {
  const TemporaryFolder folder;
  std::filesystem::create_directory(folder / "live");
  for (const char* const name : {"mix.wav", "live/mix.wav"}) {
    writeSound(folder / name, noise(44100, 2, 4410));
  }
  EXPECT_EQ(Program(folder.path()).run({"--m4a", "out", "mix.wav", "live/mix.wav"}).status, 0);
  std::vector<std::string> names;
  for (const auto& entry : std::filesystem::directory_iterator(folder / "out")) {
    names.push_back(entry.path().filename().string());
  }
  EXPECT_THAT(names, UnorderedElementsAre("mix.aac-vbrc-256.m4a", "mix-2.aac-vbrc-256.m4a"));
}

TEST(BitStreams, HoldASingleSample) {
  const TemporaryFolder folder;
  writeSound(folder / "mix.wav", silence(44100, 1, 1));
  EXPECT_EQ(Program(folder.path()).run({"--m4a", "out", "mix.wav"}).status, 0);
  EXPECT_THAT(outputOf("ffprobe -v error -show_entries stream=codec_name -of csv=p=0 '" +
                       (folder / "out/mix.aac-vbrc-256.m4a").string() + "'"),
              HasSubstr("aac"));
}

}  // namespace
