#include <gmock/gmock.h>
#include <sndfile.h>
#include <unistd.h>

#include <functional>

#include "Measured.h"
#include "Sound.h"
#include "ui/TemporaryFolder.h"

using testing::HasSubstr;
using testing::IsEmpty;
using testing::SizeIs;

namespace {

namespace fs = std::filesystem;

struct BadFile {
  const char* name;
  /// Makes bad.wav.
  std::function<void(const fs::path&)> make;
  /// What the line says of it, and what to do.
  const char* why;
  const char* advice;
};

class BadFiles : public testing::TestWithParam<BadFile> {};

TEST_P(BadFiles, GetOneLineEachAndLeaveTheOthersToBeMeasured) {
  const auto& bad = GetParam();
  const TemporaryFolder folder;
  bad.make(folder / "bad.wav");
  writeSound(folder / "good.wav", noise(44100, 2, 4410));
  const auto outcome = Program(folder.path())
                           .run({"--json", "--preset", "plus", "--preset", "128k", "--m4a", "out",
                                 "--png", "out", "bad.wav", "good.wav"});
  EXPECT_EQ(outcome.status, 1);
  ASSERT_THAT(outcome.complaints(), SizeIs(1)) << outcome.err;
  EXPECT_THAT(outcome.err, HasSubstr("'bad.wav'"));
  EXPECT_THAT(outcome.err, HasSubstr(bad.why));
  EXPECT_THAT(outcome.err, HasSubstr(bad.advice));
  const auto measured = rows(outcome);
  ASSERT_THAT(measured, SizeIs(2));
  EXPECT_EQ(measured[0]["file"], "good.wav");
  for (const auto& entry : fs::directory_iterator(folder / "out")) {
    EXPECT_THAT(entry.path().filename().string(), testing::StartsWith("good."));
  }
}

const BadFile files[] = {
    {"Missing", [](const fs::path&) {}, "there is no such file", "give the path"},
    {"Empty", [](const fs::path& file) { writeBytes(file, ""); }, "the file is empty",
     "give a file"},
    {"Text", [](const fs::path& file) { writeBytes(file, "No sound at all.\n"); }, "recognised",
     "give a WAV"},
    {"Noise",
     [](const fs::path& file) {
       std::string bytes = "RIFF";
       for (int i = 0; i < 5000; ++i) bytes += static_cast<char>(i * 7919 >> 3);
       writeBytes(file, bytes);
     },
     "cannot read", "give a WAV"},
    {"HeaderOnly",
     [](const fs::path& file) {
       writeSound(file, noise(44100, 2, 100));
       fs::resize_file(file, 30);
     },
     "cannot read", "give a"},
    {"NoSamples", [](const fs::path& file) { writeSound(file, silence(44100, 2, 0)); },
     "it holds no audio", "at least one sample"},
    {"EmptyFolder", [](const fs::path& file) { fs::create_directory(file); },
     "no sound file is in it", "give WAV"},
    {"Device", [](const fs::path& file) { fs::create_symlink("/dev/null", file); },
     "not an ordinary file", "give the path"},
    {"EndlessDevice", [](const fs::path& file) { fs::create_symlink("/dev/zero", file); },
     "not an ordinary file", "give the path"},
    {"Pipe", [](const fs::path& file) { ::mkfifo(file.c_str(), 0600); }, "not an ordinary file",
     "give the path"},
    {"LinkToNowhere", [](const fs::path& file) { fs::create_symlink("nowhere", file); },
     "there is no such file", "give the path"},
    {"LinkToItself", [](const fs::path& file) { fs::create_symlink(file.filename(), file); },
     "cannot read", "check"},
    {"Surround", [](const fs::path& file) { writeSound(file, noise(48000, 6, 4800)); },
     "it has 6 channels", "--channels"},
    {"TooSlow", [](const fs::path& file) { writeSound(file, noise(1000, 1, 100)); }, "1000 Hz",
     "give a file from 2 to 768 kHz"},
};

INSTANTIATE_TEST_SUITE_P(Matrix, BadFiles, testing::ValuesIn(files),
                         [](const auto& test) { return test.param.name; });

class OddFiles : public testing::Test {
 protected:
  Outcome run(const std::vector<std::string>& arguments) {
    return Program(folder_.path()).run(arguments);
  }
  TemporaryFolder folder_;
};

TEST_F(OddFiles, MayBeUnreadable) {
  writeSound(folder_ / "bad.wav", noise(44100, 2, 4410));
  writeSound(folder_ / "good.wav", noise(44100, 2, 4410));
  fs::permissions(folder_ / "bad.wav", fs::perms::none);
  Program program(folder_.path());
  std::vector<std::string> arguments = {"--json", "bad.wav", "good.wav"};
  if (::geteuid() == 0) {
    // Root may read everything, nobody may not.
    fs::permissions(folder_.path(), fs::perms::others_read | fs::perms::others_exec,
                    fs::perm_options::add);
    program.setExecutable("/usr/bin/setpriv");
    arguments.insert(arguments.begin(), {"--reuid=65534", "--regid=65534", "--clear-groups", "--",
                                         Program::executableUnderTest().string()});
  }
  const auto outcome = program.run(arguments);
  constexpr int cannotBeStarted = 127;
  if (outcome.err.starts_with("setpriv: ") || outcome.status == cannotBeStarted) {
    GTEST_SKIP() << "nobody may not run the program here";
  }
  EXPECT_EQ(outcome.status, 1);
  ASSERT_THAT(outcome.complaints(), SizeIs(1)) << outcome.err;
  EXPECT_THAT(outcome.err, HasSubstr("'bad.wav'"));
  EXPECT_THAT(outcome.err, HasSubstr("ermi"));
  EXPECT_THAT(rows(outcome), SizeIs(1));
}

TEST_F(OddFiles, MayHaveASingleSample) {
  auto sound = silence(44100, 2, 1);
  sound.planes[0][0] = 0.5F;
  writeSound(folder_ / "one.wav", sound);
  const auto outcome = run({"--json", "--find-trim", "--png", "out", "one.wav"});
  EXPECT_EQ(outcome.status, 0) << outcome.err;
  EXPECT_NEAR(rows(outcome).at(0)["source"][0]["sample_peak_dbfs"], -6.02, 0.01);
  EXPECT_TRUE(fs::exists(folder_ / "out/one.aac-vbrc-256.png"));
}

TEST_F(OddFiles, MayBeCutOffAndAreMeasuredAsFarAsTheyGoButCountAsFailed) {
  writeSound(folder_ / "cut.wav", noise(44100, 2, 44100 * 2));
  fs::resize_file(folder_ / "cut.wav", fs::file_size(folder_ / "cut.wav") / 2);
  const auto outcome = run({"--json", "--m4a", "out", "--png", "out", "cut.wav"});
  EXPECT_EQ(outcome.status, 1);
  ASSERT_THAT(outcome.complaints(), SizeIs(1)) << outcome.err;
  EXPECT_THAT(outcome.err, HasSubstr("'cut.wav' is damaged or cut off"));
  EXPECT_NEAR(rows(outcome).at(0)["seconds"], 1.0, 0.01);
  EXPECT_TRUE(fs::is_empty(folder_ / "out"));
}

TEST_F(OddFiles, MayHaveSamplesThatAreNoNumbers) {
  auto sound = noise(44100, 1, 4410, 0.5F);
  sound.planes[0][100] = std::numeric_limits<float>::quiet_NaN();
  sound.planes[0][200] = std::numeric_limits<float>::infinity();
  writeSound(folder_ / "odd.wav", sound);
  const auto row = rows(run({"--json", "odd.wav"})).at(0);
  EXPECT_NEAR(row["source"][0]["sample_peak_dbfs"], -6.02, 0.1);
}

TEST_F(OddFiles, MayHaveAnyName) {
  for (const std::string name : {"Größe 音楽.wav", "new\nline.wav", "-dash.wav", "\xff.wav"}) {
    writeSound(folder_ / name, noise(44100, 2, 441));
    const auto outcome = run({"--m4a", "out", "--png", "out", "--", name});
    EXPECT_EQ(outcome.status, 0) << outcome.err;
    EXPECT_EQ(std::count(outcome.out.begin(), outcome.out.end(), '\n'), 3);
    EXPECT_EQ(rows(run({"--json", "--", name})).size(), 1U);
  }
}

TEST_F(OddFiles, AreNotPutInPlaceOfSomethingThatIsNoFile) {
  writeSound(folder_ / "mix.wav", noise(44100, 2, 441));
  fs::create_directories(folder_ / "out/mix.aac-vbrc-256.m4a");
  const auto outcome = run({"--m4a", "out", "mix.wav"});
  EXPECT_EQ(outcome.status, 1);
  EXPECT_THAT(outcome.err, HasSubstr("it is a folder"));
  EXPECT_THAT(outcome.err, HasSubstr("mix.wav"));
}

}  // namespace
