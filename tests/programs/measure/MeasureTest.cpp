#include <ebur128.h>
#include <fcntl.h>
#include <gmock/gmock.h>
#include <sndfile.h>
#include <unistd.h>

#include <cmath>
#include <cstdlib>
#include <memory>
#include <thread>

#include "Measured.h"
#include "Sound.h"
#include "host/messages/Version.h"
#include "ui/TemporaryFolder.h"

using testing::AnyOf;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::SizeIs;
using testing::StartsWith;

namespace {

/// What the meters read where there is nothing.
constexpr double kFloorDb = -144;

class Measure : public testing::Test {
 protected:
  Outcome run(const std::vector<std::string>& arguments) {
    return Program(folder_.path()).run(arguments);
  }
  void mix(const std::string& name, const Sound& sound) { writeSound(folder_ / name, sound); }

  TemporaryFolder folder_;
};

/// The true peak of one channel as the loudness library reads it.
double truePeakOf(const std::vector<float>& samples, std::uint32_t sampleRate) {
  struct Destroy {
    void operator()(ebur128_state* state) const { ebur128_destroy(&state); }
  };
  const std::unique_ptr<ebur128_state, Destroy> meter(
      ebur128_init(1, sampleRate, EBUR128_MODE_TRUE_PEAK));
  auto padded = samples;
  padded.resize(samples.size() + 64);
  ebur128_add_frames_float(meter.get(), padded.data(), padded.size());
  double value = 0;
  ebur128_true_peak(meter.get(), 0, &value);
  return 20 * std::log10(value);
}

/// The same as ffmpeg reads it.
double truePeakByFfmpeg(const std::filesystem::path& file) {
  const auto command = "ffmpeg -nostdin -nostats -i '" + file.string() +
                       "' -filter_complex ebur128=peak=true -f null - 2>&1 | "
                       "sed -n 's/^ *Peak: *\\(.*\\) dBFS/\\1/p' | tail -n 1";
  const std::unique_ptr<FILE, int (*)(FILE*)> pipe(::popen(command.c_str(), "r"), ::pclose);
  double value = NAN;
  if (!pipe || std::fscanf(pipe.get(), "%lf", &value) != 1) return NAN;
  return value;
}

/// Faded in and out: what lies between the samples of an abrupt end is a matter of the filter.
Sound faded(Sound sound) {
  constexpr std::size_t length = 4800;
  for (auto& plane : sound.planes) {
    for (std::size_t i = 0; i < length; ++i) {
      const auto gain = static_cast<float>(i) / static_cast<float>(length);
      plane[i] *= gain;
      plane[plane.size() - 1 - i] *= gain;
    }
  }
  return sound;
}

TEST_F(Measure, PrintsARowForEveryFileAndSetting) {
  mix("one.wav", noise(44100, 2, 44100));
  mix("two.wav", noise(48000, 2, 48000));
  const auto outcome = run({"--all", "one.wav", "two.wav"});
  EXPECT_EQ(outcome.status, 0);
  EXPECT_THAT(outcome.complaints(),
              ElementsAre(HasSubstr("'one.wav': the encoder cannot do AAC HE VBRC 320 kbit/s here "
                                    "and does AAC HE VBRC 265 kbit/s"),
                          HasSubstr("'two.wav': the encoder cannot do AAC HE VBRC 320 kbit/s here "
                                    "and does AAC HE VBRC 288 kbit/s")));
  EXPECT_EQ(std::count(outcome.out.begin(), outcome.out.end(), '\n'), 2 + 8);
  EXPECT_THAT(outcome.out, HasSubstr("one.wav  AAC HE ABR 64"));
  EXPECT_THAT(outcome.out, testing::Not(HasSubstr("\x1b")));
}

TEST_F(Measure, KeepsTheOrderHoweverManyWorkAtOnce) {
  std::vector<std::string> files;
  for (int i = 0; i < 6; ++i) {
    files.push_back("mix" + std::to_string(i) + ".wav");
    // The first ones take longest.
    mix(files.back(), noise(44100, 2, static_cast<std::size_t>(44100 * (6 - i)), 0.5F));
  }
  auto arguments = files;
  arguments.insert(arguments.end(), {"--json", "--preset", "plus", "--preset", "streaming"});
  auto several = arguments;
  arguments.insert(arguments.end(), {"--jobs", "1"});
  several.insert(several.end(), {"--jobs", "4"});
  const auto one = run(arguments);
  EXPECT_THAT(rows(one), SizeIs(12));
  EXPECT_EQ(run(several).out, one.out);
}

TEST_F(Measure, TakesEverySoundFileOfAFolder) {
  std::filesystem::create_directories(folder_ / "album/disc 1");
  mix("album/disc 1/b.wav", noise(44100, 2, 4410));
  mix("album/a.wav", noise(44100, 2, 4410));
  writeBytes(folder_ / "album/cover.jpg", "x");
  const auto found = rows(run({"--json", "album"}));
  ASSERT_THAT(found, SizeIs(2));
  EXPECT_EQ(found[0]["file"], "album/a.wav");
  EXPECT_EQ(found[1]["file"], "album/disc 1/b.wav");
}

TEST_F(Measure, ReportsTheOthersWhenAFileFails) {
  mix("good.wav", noise(44100, 2, 4410));
  writeBytes(folder_ / "bad.wav", "No sound.");
  const auto outcome =
      run({"--json", "--preset", "plus", "--preset", "128k", "bad.wav", "missing.wav", "good.wav"});
  EXPECT_EQ(outcome.status, 1);
  EXPECT_THAT(rows(outcome), SizeIs(2));
  EXPECT_THAT(outcome.complaints(),
              ElementsAre(HasSubstr("'bad.wav'"), HasSubstr("'missing.wav'")));
}

TEST_F(Measure, FailsOnOversOnlyWhenItIsTold) {
  mix("loud.wav", noise(44100, 2, 44100, 1.2F));
  mix("soft.wav", noise(44100, 2, 44100, 0.3F));
  EXPECT_EQ(run({"loud.wav"}).status, 0);
  EXPECT_EQ(run({"--fail-on-overs", "loud.wav", "soft.wav"}).status, 3);
  EXPECT_EQ(run({"--fail-on-overs", "soft.wav"}).status, 0);
  EXPECT_EQ(run({"--fail-on-overs", "loud.wav", "missing.wav"}).status, 1);
}

TEST_F(Measure, LetsInterSampleOversCountWhenItIsTold) {
  // A quarter of the sample rate, 45 degrees off: 3 dB more between the samples than on them.
  auto sound = silence(48000, 1, 48000);
  for (std::size_t i = 0; i < 48000; ++i) {
    const auto fade =
        std::min({1.0, static_cast<double>(i) / 4800, static_cast<double>(48000 - i) / 4800});
    const auto wave = std::sin(std::acos(-1.0) * (static_cast<double>(i) / 2 + 0.25));
    sound.planes[0][i] = static_cast<float>(fade * wave * 1.2);
  }
  mix("between.wav", sound);
  EXPECT_EQ(run({"--fail-on-overs", "between.wav"}).status, 0);
  EXPECT_EQ(run({"--fail-on-overs", "--inter-sample", "between.wav"}).status, 3);
}

TEST_F(Measure, CountsTheVeryLastSample) {
  auto sound = silence(48000, 2, 48000 + 17);
  sound.planes[0].back() = 0.9F;
  sound.planes[1].back() = 1.1F;
  mix("mix.wav", sound);
  const auto json = rows(run({"--json", "mix.wav"})).at(0);
  EXPECT_NEAR(json["source"][0]["sample_peak_dbfs"], -0.915, 0.001);
  EXPECT_EQ(json["source"][1]["sample_clips"], 1);
  EXPECT_NEAR(json["seconds"], (48000.0 + 17) / 48000, 1e-6);
}

TEST_F(Measure, MetersWhatComesAfterTheLastSampleAsSilence) {
  // The waveform behind the last sample of this one overshoots.
  auto sound = silence(48000, 1, 4800);
  for (std::size_t i = 4700; i < 4800; ++i) sound.planes[0][i] = 0.99F;
  mix("mix.wav", sound);
  const auto json = rows(run({"--json", "mix.wav"})).at(0);
  EXPECT_NEAR(json["source"][0]["inter_sample_peak_dbtp"], truePeakOf(sound.planes[0], 48000), 0.2);
  EXPECT_GE(json["source"][0]["inter_sample_overs"], 2);
}

TEST_F(Measure, ReadsTheFloorForSilence) {
  mix("mix.wav", silence(48000, 2, 48000));
  const auto outcome = run({"--json", "mix.wav"});
  EXPECT_EQ(outcome.status, 0);
  const auto row = rows(outcome).at(0);
  for (const auto* const signal : {"source", "encoded"}) {
    ASSERT_THAT(row[signal], SizeIs(2));
    for (const auto& channel : row[signal]) {
      EXPECT_EQ(channel["sample_peak_dbfs"], kFloorDb);
      EXPECT_EQ(channel["inter_sample_peak_dbtp"], kFloorDb);
      EXPECT_EQ(channel["sample_clips"], 0);
      EXPECT_EQ(channel["inter_sample_overs"], 0);
    }
  }
  EXPECT_THAT(run({"mix.wav"}).out, HasSubstr(" -144.00 "));
}

TEST_F(Measure, AgreesWithOtherTruePeakMetersOnTheSource) {
  const std::pair<const char*, Sound> sounds[] = {
      {"hot.wav", noise(44100, 2, 44100 * 3, 1.0F)},
      {"soft.wav", noise(48000, 2, 48000 * 3, 0.1F)},
      {"high.wav", faded(sine(96000, 2, 96000 * 3, 9100.0, 0.9))},
      {"sine.wav", faded(sine(44100, 1, 44100 * 3, 9973.0, 1.1))},
  };
  for (const auto& [name, sound] : sounds) {
    mix(name, sound);
    const auto json = rows(run({"--json", name})).at(0);
    double largest = kFloorDb;
    for (std::size_t channel = 0; channel < sound.channels(); ++channel) {
      const double read = json["source"][channel]["inter_sample_peak_dbtp"];
      EXPECT_NEAR(read, truePeakOf(sound.planes[channel], sound.sampleRate), 0.2) << name;
      largest = std::max(largest, read);
    }
    EXPECT_NEAR(largest, truePeakByFfmpeg(folder_ / name), 0.2) << name;
  }
}

TEST_F(Measure, TakesTheChosenChannels) {
  const auto surround = noise(48000, 6, 48000);
  mix("surround.wav", surround);
  mix("pair.wav", {48000, {surround.planes[4], surround.planes[5]}});
  auto chosen = rows(run({"--json", "--channels", "5,6", "surround.wav"})).at(0);
  auto pair = rows(run({"--json", "pair.wav"})).at(0);
  EXPECT_EQ(chosen["channels"], 2);
  chosen["file"] = pair["file"] = "";
  EXPECT_EQ(chosen, pair);
}

TEST_F(Measure, SaysWhatTheEncoderDoesWhereItCannotDoAsItIsTold) {
  mix("mix.wav", noise(48000, 1, 48000));
  const auto outcome = run({"--json", "--set", "he,abr,320", "mix.wav"});
  EXPECT_EQ(outcome.status, 0);
  EXPECT_THAT(outcome.complaints(), ElementsAre(HasSubstr("'mix.wav': the encoder cannot do")));
}

TEST_F(Measure, SaysWhichFileTheEncoderDoesNotTake) {
  mix("mono.wav", noise(48000, 1, 4800));
  mix("stereo.wav", noise(48000, 2, 4800));
  const auto outcome = run({"--json", "--set", "hev2,abr,32", "mono.wav", "stereo.wav"});
  EXPECT_EQ(outcome.status, 1);
  EXPECT_THAT(outcome.complaints(), ElementsAre(HasSubstr("'mono.wav': the converter does not")));
  EXPECT_THAT(rows(outcome), SizeIs(1));
}

TEST_F(Measure, ReadsHighRatesAndEveryDepth) {
  const auto sound = sine(384000, 2, 384000, 1000, 0.5);
  for (const auto format : {SF_FORMAT_WAV | SF_FORMAT_PCM_U8, SF_FORMAT_WAV | SF_FORMAT_DOUBLE,
                            SF_FORMAT_RF64 | SF_FORMAT_PCM_24, SF_FORMAT_FLAC | SF_FORMAT_PCM_24}) {
    writeSound(folder_ / "mix.wav", sound, format);
    const auto json = rows(run({"--json", "mix.wav"})).at(0);
    EXPECT_EQ(json["sample_rate_hz"], 192000);
    EXPECT_EQ(json["seconds"], 1.0);
    EXPECT_NEAR(json["source"][0]["sample_peak_dbfs"], -6.02, 0.1);
  }
}

TEST_F(Measure, ShowsNoProgressWhereThereIsNoTerminal) {
  mix("mix.wav", noise(44100, 2, 44100 * 5));
  EXPECT_EQ(run({"--preset", "plus", "--preset", "128k", "mix.wav"}).err, "");
}

/// A terminal that keeps what is shown on it.
class Terminal {
 public:
  Terminal() : master_(::posix_openpt(O_RDWR | O_NOCTTY | O_CLOEXEC)) {
    ::grantpt(master_);
    ::unlockpt(master_);
    // Held open, so that there is something to read before and after the program.
    slave_ = ::open(path().c_str(), O_RDWR | O_NOCTTY | O_CLOEXEC);
    reader_ = std::thread([this] {
      char buffer[1024];
      for (;;) {
        const auto got = ::read(master_, buffer, sizeof buffer);
        if (got <= 0) return;
        shown_.append(buffer, static_cast<std::size_t>(got));
      }
    });
  }
  Terminal(const Terminal&) = delete;
  Terminal& operator=(const Terminal&) = delete;
  ~Terminal() { ::close(master_); }

  std::string path() const { return ::ptsname(master_); }
  /// All that was shown until the program ended.
  std::string shown() {
    ::close(slave_);
    reader_.join();
    return shown_;
  }

 private:
  int master_;
  int slave_;
  std::string shown_;
  std::thread reader_;
};

TEST_F(Measure, ShowsProgressOnATerminalAndRemovesItAgain) {
  mix("mix.wav", noise(44100, 2, 44100 * 60));
  Terminal terminal;
  Program program(folder_.path());
  program.setStandardError(terminal.path());
  const auto outcome = program.run({"--json", "mix.wav"});
  EXPECT_EQ(outcome.status, 0);
  EXPECT_THAT(rows(outcome), SizeIs(1));
  const auto shown = terminal.shown();
  EXPECT_THAT(shown, HasSubstr(" %  1 of 1"));
  EXPECT_THAT(shown, HasSubstr("mix.wav  AAC VBRC 256"));
  EXPECT_THAT(shown, testing::EndsWith("\r\x1b[K"));
  EXPECT_THAT(shown, testing::Not(HasSubstr("\n")));
}

TEST_F(Measure, TakesNoMoreMemoryForALongFile) {
  const auto memoryFor = [&](std::size_t seconds) {
    // Silence of 8 bits is 0x80; what is not written is 0, a constant, and takes no place on disk.
    mix("long.wav", silence(32000, 1, 1));
    writeSound(folder_ / "long.wav", silence(32000, 1, 1), SF_FORMAT_RF64 | SF_FORMAT_PCM_16);
    auto head = readBytes(folder_ / "long.wav");
    const auto bytes = std::uint64_t{seconds} * 32000 * 2;
    const auto data = head.find("data") + 8;
    const auto ds64 = head.find("ds64") + 8;
    const auto put = [&](std::size_t at, std::uint64_t value) {
      for (std::size_t i = 0; i < 8; ++i) head[at + i] = static_cast<char>(value >> (8 * i));
    };
    put(ds64, data - 8 + bytes);
    put(ds64 + 8, bytes);
    put(ds64 + 16, bytes / 2);
    writeBytes(folder_ / "long.wav", head.substr(0, data));
    std::filesystem::resize_file(folder_ / "long.wav", data + bytes);
    const auto outcome = run({"--json", "--png", "out", "long.wav"});
    EXPECT_EQ(outcome.status, 0) << outcome.err;
    EXPECT_EQ(rows(outcome).at(0)["seconds"], static_cast<double>(seconds));
    return outcome.memory;
  };
  constexpr std::int64_t mebibyte = std::int64_t{1} << 20U;
  const auto one = memoryFor(60);
  const auto twenty = memoryFor(1200);
#ifdef VELK_SANITIZED
  // A sanitizer keeps so much of what was freed.
  EXPECT_LT(twenty - one, 256 * mebibyte);
#else
  EXPECT_LT(twenty, 200 * mebibyte);
  EXPECT_LT(twenty - one, 4 * mebibyte);
#endif
}

TEST_F(Measure, HelpsOnRequest) {
  const auto outcome = run({"--help"});
  EXPECT_EQ(outcome.status, 0);
  EXPECT_THAT(outcome.out, HasSubstr("--find-trim"));
  EXPECT_EQ(outcome.err, "");
}

TEST_F(Measure, SaysItsVersionAndWhatItsCodecsAllow) {
  const auto outcome = run({"--version"});
  EXPECT_EQ(outcome.status, 0);
  EXPECT_THAT(outcome.out, StartsWith(std::string("aac-measure ") + host::kVersion + "\n"));
  EXPECT_THAT(outcome.out, HasSubstr("\nDecoder: libavcodec "));
  EXPECT_THAT(outcome.out, AnyOf(HasSubstr("\nFor your own use only"),
                                 HasSubstr("\nA binary may be passed on under")));
}

}  // namespace
