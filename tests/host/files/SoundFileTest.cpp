#include <gmock/gmock.h>
#include <sndfile.h>

#include <atomic>
#include <cmath>
#include <cstdio>
#include <iterator>
#include <limits>
#include <string>
#include <thread>

#include "Sound.h"
#include "host/files/OpenedFile.h"
#include "host/files/SoundFile.h"
#include "host/messages/Failure.h"
#include "ui/TemporaryFolder.h"

using host::SoundFile;
using testing::AllOf;
using testing::HasSubstr;

namespace {

/// Everything from here to the end, in blocks that fit no power of two.
Sound rest(host::AudioSource& source) {
  constexpr std::size_t block = 1000;
  const auto channels = source.format().channels;
  auto sound = silence(source.format().sampleRate, channels, 0);
  std::vector<float> interleaved(block * channels);
  for (std::size_t got = block; got == block;) {
    got = source.read(interleaved.data(), block);
    for (std::size_t i = 0; i < got * channels; ++i) {
      sound.planes[i % channels].push_back(interleaved[i]);
    }
  }
  return sound;
}

std::string whyNot(const std::filesystem::path& path) {
  try {
    const SoundFile file(path);
  } catch (const host::UsageError&) {
    return "a usage error";
  } catch (const host::Failure& failure) {
    return failure.what();
  }
  return "it opens";
}

struct Kind {
  const char* name;
  int format;
  /// Largest error of a sample; above 0.1 for formats that change the wave.
  float error;
};

constexpr Kind kinds[] = {
    {"Wav8", SF_FORMAT_WAV | SF_FORMAT_PCM_U8, 1.0F / 128},
    {"Wav16", SF_FORMAT_WAV | SF_FORMAT_PCM_16, 1.0F / 32768},
    {"Wav24", SF_FORMAT_WAV | SF_FORMAT_PCM_24, 1.0F / 8388608},
    {"Wav32", SF_FORMAT_WAV | SF_FORMAT_PCM_32, 1.0F / 8388608},
    {"WavFloat", SF_FORMAT_WAV | SF_FORMAT_FLOAT, 0.0F},
    {"WavDouble", SF_FORMAT_WAV | SF_FORMAT_DOUBLE, 0.0F},
    {"Rf64", SF_FORMAT_RF64 | SF_FORMAT_PCM_24, 1.0F / 8388608},
    {"Aiff16", SF_FORMAT_AIFF | SF_FORMAT_PCM_16, 1.0F / 32768},
    {"Aiff24", SF_FORMAT_AIFF | SF_FORMAT_PCM_24, 1.0F / 8388608},
    {"Flac16", SF_FORMAT_FLAC | SF_FORMAT_PCM_16, 1.0F / 32768},
    {"Flac24", SF_FORMAT_FLAC | SF_FORMAT_PCM_24, 1.0F / 8388608},
    {"OggVorbis", SF_FORMAT_OGG | SF_FORMAT_VORBIS, 0.2F},
    {"Mp3", SF_FORMAT_MPEG | SF_FORMAT_MPEG_LAYER_III, 0.2F},
};

class SoundFileOfAnyKind : public testing::TestWithParam<std::tuple<Kind, std::uint32_t, int>> {
 protected:
  TemporaryFolder folder_;
};

TEST_P(SoundFileOfAnyKind, ReadsWhatWasWritten) {
  const auto [kind, rate, channels] = GetParam();
  const auto count = static_cast<std::size_t>(channels);
  const auto written = sine(rate, count, rate * 2 + 77, 440);
  const auto path = folder_ / "sound";
  writeSound(path, written, kind.format);

  SoundFile file(path);
  EXPECT_EQ(file.format(), (host::AudioFormat{rate, static_cast<std::uint32_t>(channels)}));
  const auto sound = rest(file);
  EXPECT_EQ(file.frames(), static_cast<std::int64_t>(written.frames()));
  EXPECT_EQ(sound.frames(), written.frames());
  EXPECT_LE(largestDifference(sound, written), kind.error);
  EXPECT_EQ(bestLag(written, sound, 20), 0);
  EXPECT_FALSE(file.isTruncated());
}

TEST_P(SoundFileOfAnyKind, ContinuesWhereItWasSentTo) {
  const auto [kind, rate, channels] = GetParam();
  const auto count = static_cast<std::size_t>(channels);
  const auto path = folder_ / "sound";
  writeSound(path, noise(rate, count, rate * 2), kind.format);
  SoundFile file(path);
  const auto whole = rest(file);
  for (const std::size_t frame : {std::size_t{rate} + 11, std::size_t{0}, std::size_t{5000}}) {
    file.seek(static_cast<std::int64_t>(frame));
    auto sound = rest(file);
    ASSERT_EQ(sound.frames(), whole.frames() - frame);
    auto expected = whole;
    for (auto& plane : expected.planes) {
      plane.erase(plane.begin(), plane.begin() + static_cast<std::ptrdiff_t>(frame));
    }
    // Lossy decoders remember a little of what came before.
    EXPECT_LE(largestDifference(sound, expected), kind.error > 0.1F ? 1e-3F : 0.0F) << frame;
  }
}

std::string nameOf(const testing::TestParamInfo<std::tuple<Kind, std::uint32_t, int>>& test) {
  const auto [kind, rate, channels] = test.param;
  return std::string(kind.name) + "_" + std::to_string(rate) +
         (channels == 1 ? "_mono" : "_stereo");
}

INSTANTIATE_TEST_SUITE_P(SoundFile, SoundFileOfAnyKind,
                         testing::Combine(testing::ValuesIn(kinds),
                                          testing::Values(8000U, 44100U, 48000U),
                                          testing::Values(1, 2)),
                         nameOf);

// MP3, the last kind, has no such rate.
INSTANTIATE_TEST_SUITE_P(FastSoundFile, SoundFileOfAnyKind,
                         testing::Combine(testing::ValuesIn(std::begin(kinds),
                                                            std::prev(std::end(kinds))),
                                          testing::Values(192000U), testing::Values(1, 2)),
                         nameOf);

TEST(SoundFile, MakesSilenceOfSamplesThatAreNoNumbers) {
  const TemporaryFolder folder;
  auto sound = sine(48000, 1, 100, 440);
  sound.planes[0][10] = std::numeric_limits<float>::quiet_NaN();
  sound.planes[0][20] = std::numeric_limits<float>::infinity();
  writeSound(folder / "sound.wav", sound);
  SoundFile file(folder / "sound.wav");
  const auto read = rest(file);
  EXPECT_EQ(read.planes[0][10], 0.0F);
  EXPECT_EQ(read.planes[0][20], 0.0F);
  EXPECT_EQ(read.planes[0][30], sound.planes[0][30]);
}

TEST(SoundFile, KeepsSamplesAboveFullScale) {
  const TemporaryFolder folder;
  writeSound(folder / "sound.wav", sine(48000, 1, 4800, 440, 1.5));
  SoundFile file(folder / "sound.wav");
  const auto read = rest(file);
  EXPECT_NEAR(*std::max_element(read.planes[0].begin(), read.planes[0].end()), 1.5F, 1e-3F);
}

/// What the last whole page says of how many frames there are with it.
std::size_t framesInWholeOggPages(const std::string& bytes) {
  constexpr std::size_t fixedHead = 27;
  constexpr std::size_t granuleAt = 6;
  std::size_t frames = 0;
  for (std::size_t at = 0; at + fixedHead <= bytes.size();) {
    const auto byte = [&](std::size_t i) {
      return std::size_t{static_cast<unsigned char>(bytes[at + i])};
    };
    const auto segments = byte(fixedHead - 1);
    auto length = fixedHead + segments;
    if (bytes.substr(at, 4) != "OggS" || at + length > bytes.size()) break;
    for (std::size_t i = 0; i < segments; ++i) length += byte(fixedHead + i);
    if (at + length > bytes.size()) break;
    std::size_t granule = 0;
    for (std::size_t i = 8; i-- > 0;) granule = granule << 8U | byte(granuleAt + i);
    // A page in which no packet ends has none.
    if (granule != SIZE_MAX) frames = granule;
    at += length;
  }
  return frames;
}

class TruncatedSoundFile : public testing::TestWithParam<Kind> {};

TEST_P(TruncatedSoundFile, PlaysWhatIsThereAndKnowsThatSomethingIsMissing) {
  const auto kind = GetParam();
  const TemporaryFolder folder;
  const auto path = folder / "sound";
  const auto written = noise(48000, 2, 144000);
  writeSound(path, written, kind.format);
  std::filesystem::resize_file(path, std::filesystem::file_size(path) * 4 / 5);

  SoundFile file(path);
  const auto read = rest(file);
  if (kind.format == (SF_FORMAT_OGG | SF_FORMAT_VORBIS)) {
    EXPECT_EQ(read.frames(), framesInWholeOggPages(readBytes(path)));
  } else {
    EXPECT_NEAR(static_cast<double>(read.frames()), 0.8 * static_cast<double>(written.frames()),
                0.03 * static_cast<double>(written.frames()));
  }
  EXPECT_LE(largestDifference(read, written), kind.error);
  EXPECT_TRUE(file.isTruncated());
}

INSTANTIATE_TEST_SUITE_P(SoundFile, TruncatedSoundFile, testing::ValuesIn(kinds),
                         [](const auto& test) { return test.param.name; });

TEST(SoundFile, GivesTheChosenChannelsOfAFileThatHasMore) {
  const TemporaryFolder folder;
  const auto surround = noise(48000, 6, 5000);
  writeSound(folder / "sound.wav", surround);
  SoundFile pair(folder / "sound.wav", {6, 1});
  EXPECT_EQ(pair.format(), (host::AudioFormat{48000, 2}));
  EXPECT_EQ(pair.frames(), 5000);
  EXPECT_TRUE(rest(pair).planes == (std::vector{surround.planes[5], surround.planes[0]}));
  pair.seek(1234);
  EXPECT_EQ(rest(pair).planes[0].front(), surround.planes[5][1234]);
  SoundFile one(folder / "sound.wav", {3});
  EXPECT_EQ(one.format(), (host::AudioFormat{48000, 1}));
  EXPECT_TRUE(rest(one).planes == std::vector(1, surround.planes[2]));
}

TEST(SoundFile, ReadsMonoAndStereoAsTheyAreWhateverTheChoice) {
  const TemporaryFolder folder;
  const auto stereo = noise(48000, 2, 500);
  writeSound(folder / "sound.wav", stereo);
  SoundFile file(folder / "sound.wav", {5, 6});
  EXPECT_TRUE(rest(file).planes == stereo.planes);
}

TEST(SoundFile, SaysHowManyChannelsThereAreToChooseFrom) {
  const TemporaryFolder folder;
  writeSound(folder / "sound.wav", noise(48000, 6, 100));
  try {
    const SoundFile file(folder / "sound.wav");
    FAIL();
  } catch (const host::TooManyChannels& many) {
    EXPECT_EQ(many.channels(), 6U);
    EXPECT_THAT(many.what(), HasSubstr("choose two of them with --channels, such as 1,2"));
  }
  try {
    const SoundFile file(folder / "sound.wav", {1, 7});
    FAIL();
  } catch (const host::Failure& failure) {
    EXPECT_THAT(failure.what(), HasSubstr("no channel 7; give channels from 1 to 6"));
  }
}

// Opus is coded at 48 kHz whatever its rate, and a sine has settled after a few milliseconds.
TEST(SoundFile, ReadsOpus) {
  const TemporaryFolder folder;
  for (const std::uint32_t rate : {8000U, 16000U, 24000U, 48000U}) {
    for (const std::size_t channels : {1U, 2U}) {
      const auto written = noise(rate, channels, rate * 2 + 77, 0.5F);
      writeSound(folder / "sound.opus", written, SF_FORMAT_OGG | SF_FORMAT_OPUS);
      SoundFile file(folder / "sound.opus");
      EXPECT_EQ(file.format(), (host::AudioFormat{rate, static_cast<std::uint32_t>(channels)}));
      const auto sound = rest(file);
      EXPECT_EQ(sound.frames(), written.frames()) << rate;
      EXPECT_LE(std::abs(bestLag(written, sound, 20)), 1) << rate;
      EXPECT_FALSE(file.isTruncated());
    }
  }
}

TEST(SoundFile, ReadsTheHighestSampleRates) {
  const TemporaryFolder folder;
  for (const auto format : {SF_FORMAT_WAV | SF_FORMAT_PCM_24, SF_FORMAT_FLAC | SF_FORMAT_PCM_24}) {
    const auto written = sine(384000, 2, 40000, 1000);
    writeSound(folder / "sound", written, format);
    SoundFile file(folder / "sound");
    EXPECT_EQ(file.format().sampleRate, 384000U);
    EXPECT_LE(largestDifference(rest(file), written), 1.0F / 8388608);
  }
}

TEST(SoundFile, DoesNotCallAFileCutOffThatWasNeverToldItsLength) {
  const TemporaryFolder folder;
  const auto path = folder / "sound.wav";
  writeSound(path, noise(48000, 2, 4800), SF_FORMAT_WAV | SF_FORMAT_PCM_16);
  auto bytes = readBytes(path);
  const auto data = bytes.find("data");
  ASSERT_NE(data, std::string::npos);
  bytes.replace(4, 4, "\xFF\xFF\xFF\xFF");
  bytes.replace(data + 4, 4, "\xFF\xFF\xFF\xFF");
  writeBytes(path, bytes);
  SoundFile file(path);
  EXPECT_EQ(rest(file).frames(), 4800U);
  EXPECT_FALSE(file.isTruncated());
}

TEST(SoundFile, DoesNotCallAFlacFileCutOffThatWasNeverToldItsLength) {
  const TemporaryFolder folder;
  const auto path = folder / "sound.flac";
  writeSound(path, noise(48000, 2, 48000), SF_FORMAT_FLAC | SF_FORMAT_PCM_16);
  auto bytes = readBytes(path);
  // The stream's description follows the mark and the block's head; the length is 36 bits from
  // its 13th byte's lower half on.
  ASSERT_EQ(bytes.substr(0, 4), "fLaC");
  bytes[21] = static_cast<char>(static_cast<unsigned char>(bytes[21]) & 0xF0U);
  bytes.replace(22, 4, 4, '\0');
  writeBytes(path, bytes);
  SoundFile file(path);
  EXPECT_EQ(file.frames(), 48000);
  EXPECT_EQ(rest(file).frames(), 48000U);
  EXPECT_FALSE(file.isTruncated());
}

TEST(SoundFile, RefusesWhatCannotBePlayedAndSaysWhatToDo) {
  const TemporaryFolder folder;
  writeBytes(folder / "empty.wav", "");
  writeBytes(folder / "text.wav", "This is a letter, no sound.\n");
  writeSound(folder / "surround.wav", noise(48000, 6, 100));
  writeSound(folder / "slow.wav", noise(1000, 1, 100));
  writeSound(folder / "fast.wav", noise(1000000, 1, 100));
  writeSound(folder / "nothing.wav", silence(48000, 1, 0));
  const auto says = [&](const char* name, const char* why) {
    EXPECT_THAT(whyNot(folder / name),
                AllOf(HasSubstr("'" + (folder / name).string() + "'"), HasSubstr(why),
                      HasSubstr("; give "), testing::Not(HasSubstr("\n"))));
  };
  says("missing.wav", "there is no such file");
  says("empty.wav", "the file is empty");
  says("text.wav", "give a WAV, AIFF, FLAC, Ogg or MP3 file");
  says("surround.wav", "it has 6 channels");
  says("slow.wav", "its sample rate is 1000 Hz");
  says("fast.wav", "its sample rate is 1000000 Hz");
  says("nothing.wav", "it holds no audio");
  says("", "it is a folder");
}

/// An MP3 file's frames.
std::string mp3Bytes(const TemporaryFolder& folder) {
  writeSound(folder / "whole.mp3", noise(44100, 2, 44100),
             SF_FORMAT_MPEG | SF_FORMAT_MPEG_LAYER_III);
  return readBytes(folder / "whole.mp3");
}

/// What opening a file prints on standard error.
std::string printedBy(const std::filesystem::path& path) {
  testing::internal::CaptureStderr();
  static_cast<void>(whyNot(path));
  return testing::internal::GetCapturedStderr();
}

TEST(SoundFile, OpensWithoutAWordOfTheDecoder) {
  const TemporaryFolder folder;
  const auto mp3 = mp3Bytes(folder);
  // The decoder remarks on each of them.
  writeBytes(folder / "cut.mp3", mp3.substr(0, 100));
  writeBytes(folder / "empty frames.mp3", "\xff\xfb\x90" + std::string(4000, '\0'));
  writeBytes(folder / "only a tag.mp3",
             std::string("ID3\3\0\0\0\0\x10\0", 10) + std::string(4000, '\0'));
  writeBytes(folder / "shortened.mp3", mp3.substr(0, 3000) + mp3.substr(8000));
  for (const auto& name : folder.names()) EXPECT_EQ(printedBy(folder / name), "") << name;
  EXPECT_THAT(whyNot(folder / "cut.mp3"), HasSubstr("cannot read"));
  EXPECT_THAT(whyNot(folder / "only a tag.mp3"), HasSubstr("cannot read"));
  EXPECT_EQ(whyNot(folder / "shortened.mp3"), "it opens");
}

TEST(SoundFile, LetsOtherThreadsPrintWhileItOpens) {
  const TemporaryFolder folder;
  writeBytes(folder / "cut.mp3", mp3Bytes(folder).substr(0, 100));
  testing::internal::CaptureStderr();
  std::atomic<bool> stop{false};
  std::thread opening([&] {
    while (!stop) static_cast<void>(whyNot(folder / "cut.mp3"));
  });
  std::string printed;
  for (int i = 0; i < 2000; ++i) {
    const auto line = std::to_string(i) + "\n";
    std::fputs(line.c_str(), stderr);
    printed += line;
  }
  stop = true;
  opening.join();
  EXPECT_EQ(testing::internal::GetCapturedStderr(), printed);
}

TEST(SoundFile, KnowsByItsNameWhatItsContentDoesNotShow) {
  const TemporaryFolder folder;
  writeBytes(folder / "behind.mp3", std::string(22, 'x') + mp3Bytes(folder));
  writeSound(folder / "headerless.vox", noise(8000, 1, 8000), SF_FORMAT_RAW | SF_FORMAT_VOX_ADPCM);
  for (const auto& name : folder.names()) EXPECT_EQ(whyNot(folder / name), "it opens") << name;
}

TEST(SoundFile, ClosesItsDescriptors) {
  const TemporaryFolder folder;
  writeSound(folder / "mix.wav", noise(44100, 2, 100));
  const auto openOnes = [] {
    return std::distance(std::filesystem::directory_iterator("/proc/self/fd"), {});
  };
  const auto before = openOnes();
  for (int i = 0; i < 3; ++i) {
    const SoundFile file(folder / "mix.wav");
    EXPECT_EQ(openOnes(), before + 1);
    static_cast<void>(whyNot("/dev/null"));
    writeBytes(folder / "text.wav", "No sound.");
    static_cast<void>(whyNot(folder / "text.wav"));
  }
  EXPECT_EQ(openOnes(), before);
}

TEST(ChannelChoice, IsOneNumberOrTwo) {
  EXPECT_EQ(host::parsedChannelChoice("1,2"), (host::ChannelChoice{1, 2}));
  EXPECT_EQ(host::parsedChannelChoice("12"), host::ChannelChoice{12});
  for (const auto* const bad : {"", ",", "0,1", "1,", ",2", "1,2,3", "L,R", "-1,2", "1, 2"}) {
    EXPECT_THROW(host::parsedChannelChoice(bad), host::UsageError) << bad;
  }
}

TEST(SoundFile, TellsARateOfWhichTheUnitIsCapableFromOneToBeConverted) {
  const TemporaryFolder folder;
  const std::pair<std::uint32_t, std::uint32_t> rates[] = {
      {8000, 32000},    {11025, 44100},   {16000, 32000},   {22050, 44100},   {32000, 32000},
      {44100, 44100},   {48000, 48000},   {88200, 88200},   {96000, 96000},   {24000, 48000},
      {64000, 96000},   {117600, 176400}, {176400, 176400}, {192000, 192000}, {250000, 192000},
      {352800, 176400}, {384000, 192000}, {705600, 176400}, {768000, 192000}};
  for (const auto& [file, unit] : rates) {
    writeSound(folder / "sound.wav", noise(file, 2, file / 10));
    const auto opened = host::openForPlaying(folder / "sound.wav");
    EXPECT_EQ(opened.original.sampleRate, file);
    EXPECT_EQ(opened.source->format(), (host::AudioFormat{unit, 2}));
    EXPECT_EQ(opened.source->frames(), std::int64_t{file / 10} * unit / file);
  }
}

}  // namespace
