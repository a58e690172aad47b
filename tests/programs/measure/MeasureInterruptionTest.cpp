#include <gmock/gmock.h>
#include <signal.h>
#include <sndfile.h>

#include <thread>

#include "Measured.h"
#include "Sound.h"
#include "ui/TemporaryFolder.h"

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::SizeIs;
using testing::UnorderedElementsAre;

namespace {

namespace fs = std::filesystem;

class Interruption : public testing::Test {
 protected:
  Interruption() { fs::create_directory(folder_ / "out"); }

  /// Starts measuring long.wav after the others, and waits until it is amid its bit stream.
  pid_t startedInTheMiddle(Program& program, const std::vector<std::string>& others = {}) {
    writeSound(folder_ / "long.wav", noise(32000, 1, 32000 * 120),
               SF_FORMAT_WAV | SF_FORMAT_PCM_16);
    std::vector<std::string> arguments = {"--json", "--jobs", "1", "--m4a", "out", "--png", "out"};
    arguments.insert(arguments.end(), others.begin(), others.end());
    arguments.insert(arguments.end(), {"--set", "aac,abr,128", "long.wav"});
    const auto process = program.start(arguments);
    while (!isWriting()) std::this_thread::yield();
    return process;
  }
  std::vector<std::string> left() const {
    std::vector<std::string> names;
    for (const auto& entry : fs::directory_iterator(folder_ / "out")) {
      names.push_back(entry.path().filename().string());
    }
    return names;
  }

  TemporaryFolder folder_;

 private:
  bool isWriting() const {
    for (const auto& entry : fs::directory_iterator(folder_ / "out")) {
      std::error_code gone;
      const auto name = entry.path().filename().string();
      if (name.find("long.aac-abr-128.m4a.part-") == 0 && entry.file_size(gone) > 10000 && !gone) {
        return true;
      }
    }
    return false;
  }
};

TEST_F(Interruption, ByASignalLeavesNothingHalfWrittenAndSaysWhatWasDone) {
  for (const int signal : {SIGINT, SIGTERM, SIGHUP}) {
    Program program(folder_.path());
    const auto process = startedInTheMiddle(program);
    ::kill(process, signal);
    const auto outcome = program.wait(process);
    EXPECT_EQ(outcome.status, 128 + signal);
    ASSERT_THAT(outcome.complaints(), SizeIs(1)) << outcome.err;
    EXPECT_THAT(outcome.err, HasSubstr("interrupted after 0 measurements of 1 file"));
    EXPECT_THAT(left(), IsEmpty());
  }
}

TEST_F(Interruption, KeepsWhatWasDoneBefore) {
  writeSound(folder_ / "short.wav", noise(44100, 2, 4410));
  Program program(folder_.path());
  const auto process = startedInTheMiddle(program, {"short.wav"});
  ::kill(process, SIGINT);
  const auto outcome = program.wait(process);
  EXPECT_EQ(outcome.status, 128 + SIGINT);
  EXPECT_THAT(outcome.err, HasSubstr("interrupted after 1 measurement of 2 files"));
  EXPECT_THAT(rows(outcome), SizeIs(1));
  EXPECT_THAT(left(), UnorderedElementsAre("short.aac-abr-128.m4a", "short.aac-abr-128.png"));
}

TEST_F(Interruption, ByAFileThatVanishesLeavesNothingOfIt) {
  Program program(folder_.path());
  const auto process = startedInTheMiddle(program);
  fs::resize_file(folder_ / "long.wav", 100);
  fs::remove(folder_ / "long.wav");
  const auto outcome = program.wait(process);
  EXPECT_EQ(outcome.status, 1);
  ASSERT_THAT(outcome.complaints(), SizeIs(1)) << outcome.err;
  EXPECT_THAT(outcome.err, HasSubstr("'long.wav' is damaged or cut off"));
  EXPECT_THAT(left(), IsEmpty());
  EXPECT_LT(rows(outcome).at(0)["seconds"], 120.0);
}

TEST_F(Interruption, ByAFullDiskNamesTheFileAndLeavesNothing) {
  writeSound(folder_ / "mix.wav", noise(32000, 2, 32000 * 20), SF_FORMAT_WAV | SF_FORMAT_PCM_16);
  // No file may grow beyond 64 blocks of 512 bytes.
  Program shell(folder_.path());
  shell.setExecutable("/bin/sh");
  const std::string program = Program::executableUnderTest().string();
  const auto outcome = shell.run(
      {"-c", "ulimit -f 64; exec \"$0\" \"$@\"", program, "--json", "--m4a", "out", "mix.wav"});
  EXPECT_EQ(outcome.status, 1);
  ASSERT_THAT(outcome.complaints(), SizeIs(1)) << outcome.err;
  EXPECT_THAT(outcome.err, HasSubstr("cannot write 'out/mix.aac-vbrc-256.m4a'"));
  EXPECT_THAT(left(), IsEmpty());
}

TEST_F(Interruption, ByAFullStandardOutputIsSaid) {
  writeSound(folder_ / "mix.wav", noise(44100, 2, 44100));
  Program program(folder_.path());
  program.setStandardOutput("/dev/full");
  const auto outcome = program.run({"mix.wav", "mix.wav", "mix.wav"});
  EXPECT_EQ(outcome.status, 1);
  EXPECT_THAT(outcome.complaints(), ElementsAre(HasSubstr("cannot write to standard output")));
}

TEST_F(Interruption, ByAReaderThatLeavesIsNoCrash) {
  writeSound(folder_ / "mix.wav", noise(44100, 2, 4410));
  Program shell(folder_.path());
  shell.setExecutable("/bin/sh");
  const auto outcome =
      shell.run({"-c", "(\"$0\" \"$@\"; echo $? >&2) | true",
                 Program::executableUnderTest().string(), "--all", "mix.wav", "mix.wav"});
  EXPECT_EQ(outcome.complaints().back(), "1") << outcome.err;
}

}  // namespace
