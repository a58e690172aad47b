#include <gmock/gmock.h>
#include <unistd.h>

#include <functional>

#include "Program.h"
#include "Sound.h"
#include "ui/TemporaryFolder.h"

using testing::HasSubstr;
using testing::SizeIs;
using testing::StartsWith;

namespace {

using Words = std::vector<std::string>;

struct BadInput {
  const char* name;
  std::function<void(const TemporaryFolder&)> prepare;
  Words arguments;
  int status;
  /// What the message has to name, and the advice it has to give.
  const char* named;
  const char* advice;
};

void nothing(const TemporaryFolder&) {}
void mix(const TemporaryFolder& folder) {
  writeSound(folder / "mix.wav", noise(48000, 2, 4800));
}

class BadInputTo : public testing::TestWithParam<BadInput> {};

TEST_P(BadInputTo, TheProgramIsAnsweredByOneLineAndLeavesNothing) {
  const auto& bad = GetParam();
  const TemporaryFolder folder;
  bad.prepare(folder);
  auto before = folder.names();
  const auto outcome = Program(folder.path()).run(bad.arguments);
  EXPECT_EQ(outcome.status, bad.status);
  EXPECT_EQ(outcome.out, "");
  ASSERT_THAT(outcome.complaints(), SizeIs(1)) << outcome.err;
  EXPECT_THAT(outcome.err, StartsWith("aac-audition: "));
  EXPECT_THAT(outcome.err, HasSubstr(bad.named));
  EXPECT_THAT(outcome.err, HasSubstr(bad.advice));
  EXPECT_THAT(folder.names(), testing::UnorderedElementsAreArray(before));
}

/// The arguments to run `file` and write a recording and a screenshot.
Words all(const char* file) {
  return {file, "--headless", "--json", "--record", "out.wav", "--screenshot", "out.png"};
}

const BadInput files[] = {
    {"MissingFile", nothing, all("mix.wav"), 1, "'mix.wav'", "give the path of a sound file"},
    {"EmptyFile", [](const auto& folder) { writeBytes(folder / "mix.wav", ""); }, all("mix.wav"), 1,
     "'mix.wav'", "give a file that holds audio"},
    {"Text", [](const auto& folder) { writeBytes(folder / "mix.wav", "No sound at all.\n"); },
     all("mix.wav"), 1, "'mix.wav'", "give a WAV, AIFF, FLAC, Ogg or MP3 file"},
    {"HeaderOnly",
     [](const auto& folder) {
       mix(folder);
       std::filesystem::resize_file(folder / "mix.wav", 30);
     },
     all("mix.wav"), 1, "'mix.wav'", "give a"},
    {"Folder", [](const auto& folder) { std::filesystem::create_directory(folder / "mix.wav"); },
     all("mix.wav"), 1, "'mix.wav'", "give the path of a sound file"},
    {"Device", nothing, all("/dev/zero"), 1, "'/dev/zero'", "give the path of a sound file"},
    {"Surround", [](const auto& folder) { writeSound(folder / "mix.wav", noise(48000, 6, 4800)); },
     all("mix.wav"), 1, "6 channels", "give a mono or stereo file"},
    {"UnsupportedRate",
     [](const auto& folder) { writeSound(folder / "mix.wav", noise(1000, 2, 4800)); },
     all("mix.wav"), 1, "1000 Hz", "give a file from 2 to 768 kHz"},
    {"NoSamples", [](const auto& folder) { writeSound(folder / "mix.wav", silence(48000, 2, 0)); },
     all("mix.wav"), 1, "'mix.wav'", "give a file with at least one sample"},
    {"MonoForParametricStereo",
     [](const auto& folder) { writeSound(folder / "mix.wav", noise(48000, 1, 4800)); },
     {"mix.wav", "--headless", "--record", "out.wav", "--set", "hev2,abr,32"},
     1,
     "AAC HEv2",
     "choose the format he or aac"},
    {"NameOfTwoLines", nothing, all("a\nb.wav"), 1, "a b.wav", "give the path of a sound file"},
};

const BadInput places[] = {
    {"NoSuchDevice",
     mix,
     {"mix.wav", "--headless", "--device", "Gramophone"},
     1,
     "'Gramophone'",
     "give one of: none"},
    {"NoSuchDeviceForTheWindow",
     mix,
     {"mix.wav", "--device", "Gramophone"},
     1,
     "'Gramophone'",
     "give one of: none"},
    {"NoFolderForTheScreenshot",
     mix,
     {"mix.wav", "--headless", "--record", "out.wav", "--screenshot", "no/out.png"},
     1,
     "'no/out.png'",
     "choose a folder that can be written to"},
    {"FolderInPlaceOfTheScreenshot",
     mix,
     {"mix.wav", "--headless", "--screenshot", "."},
     1,
     "'.'",
     "give the path of a file"},
    {"NoFolderForTheRecording",
     mix,
     {"mix.wav", "--headless", "--screenshot", "out.png", "--record", "no/out.wav"},
     1,
     "'no/out.wav'",
     "choose a folder that can be written to"},
    {"DeviceInPlaceOfTheRecording",
     mix,
     {"mix.wav", "--headless", "--record", "/dev/full"},
     1,
     "'/dev/full'",
     "choose another name"},
    {"SystemFileInPlaceOfTheRecording",
     mix,
     {"mix.wav", "--headless", "--record", "/proc/version"},
     1,
     "'/proc/version'",
     "choose"},
};

const BadInput usage[] = {
    {"UnknownOption", mix, {"mix.wav", "--headless", "--loud"}, 2, "--loud", "--help"},
    {"UnknownPreset",
     mix,
     {"mix.wav", "--headless", "--preset", "best"},
     2,
     "'best'",
     "the presets are plus, 128k, streaming and high"},
    {"UnknownSetting",
     mix,
     {"mix.wav", "--headless", "--set", "aac,abr,1"},
     2,
     "'aac,abr,1'",
     "one of 16 20"},
    {"UnknownMonitor",
     mix,
     {"mix.wav", "--headless", "--monitor", "both"},
     2,
     "'both'",
     "give source or encoded"},
    {"BadSeconds",
     mix,
     {"mix.wav", "--headless", "--seconds", "0"},
     2,
     "--seconds",
     "give a number above 0"},
    {"NoFile", nothing, {"--headless", "--json"}, 2, "--headless", "give FILE"},
    {"RecordingOverTheFile",
     mix,
     {"mix.wav", "--headless", "--record", "./mix.wav"},
     2,
     "--record",
     "give another name"},
};

const auto nameOf = [](const auto& test) { return test.param.name; };
INSTANTIATE_TEST_SUITE_P(File, BadInputTo, testing::ValuesIn(files), nameOf);
INSTANTIATE_TEST_SUITE_P(Place, BadInputTo, testing::ValuesIn(places), nameOf);
INSTANTIATE_TEST_SUITE_P(Usage, BadInputTo, testing::ValuesIn(usage), nameOf);

TEST(Audition, SaysThatItMayNotReadAFile) {
  if (::geteuid() == 0) GTEST_SKIP() << "root may read everything";
  const TemporaryFolder folder;
  mix(folder);
  std::filesystem::permissions(folder / "mix.wav", std::filesystem::perms::none);
  const auto outcome = Program(folder.path()).run(all("mix.wav"));
  EXPECT_EQ(outcome.status, 1);
  ASSERT_THAT(outcome.complaints(), SizeIs(1)) << outcome.err;
  EXPECT_THAT(outcome.err, HasSubstr("'mix.wav'"));
  EXPECT_THAT(folder.names(), testing::ElementsAre("mix.wav"));
}

TEST(Audition, SaysThatStandardOutputIsFull) {
  const TemporaryFolder folder;
  mix(folder);
  Program program(folder.path());
  program.setStandardOutput("/dev/full");
  const auto outcome = program.run({"mix.wav", "--headless", "--json"});
  EXPECT_EQ(outcome.status, 1);
  EXPECT_THAT(outcome.err, HasSubstr("cannot write to standard output"));
}

TEST(Audition, SaysHowToDoWithoutADisplay) {
  const TemporaryFolder folder;
  mix(folder);
  Program program(folder.path());
  program.withoutDisplay();
  const auto outcome = program.run({"mix.wav"});
  EXPECT_EQ(outcome.status, 1);
  ASSERT_THAT(outcome.complaints(), SizeIs(1)) << outcome.err;
  EXPECT_THAT(outcome.err, HasSubstr("add --headless"));
}

TEST(Audition, NeedsNoDisplayHeadless) {
  const TemporaryFolder folder;
  mix(folder);
  Program program(folder.path());
  program.withoutDisplay();
  EXPECT_EQ(program.run({"mix.wav", "--headless"}).status, 0);
}

/// A copy of the program with a bundle for tests to break.
class BrokenBundle : public testing::Test {
 protected:
  BrokenBundle() : program_(copiedProgram(installed_.path())), bundle_(bundleOf(program_)) {
    mix(folder_);
  }
  void expectOneLineThatNames(const std::string& name) {
    Program program(folder_.path());
    program.setExecutable(program_);
    const auto outcome = program.run(all("mix.wav"));
    EXPECT_EQ(outcome.status, 1);
    EXPECT_EQ(outcome.out, "");
    ASSERT_THAT(outcome.complaints(), SizeIs(1)) << outcome.err;
    EXPECT_THAT(outcome.err, HasSubstr(name));
    EXPECT_THAT(outcome.err, HasSubstr("build or install '" + bundle_.string() + "' again"));
    EXPECT_THAT(folder_.names(), testing::ElementsAre("mix.wav"));
  }
  std::filesystem::path interfaceFile() const {
    return bundle_ / "Resources" / "Velk_NordaAACConverter.ui";
  }

  TemporaryFolder installed_;
  TemporaryFolder folder_;
  std::filesystem::path program_;
  std::filesystem::path bundle_;
};

TEST_F(BrokenBundle, WorksWhileItIsWhole) {
  Program program(folder_.path());
  program.setExecutable(program_);
  EXPECT_EQ(program.run({"mix.wav", "--headless"}).status, 0);
}

TEST_F(BrokenBundle, IsNamedWhenItIsMissing) {
  std::filesystem::remove_all(bundle_);
  expectOneLineThatNames("its bundle is missing");
}

TEST_F(BrokenBundle, IsNamedWhenItsProgramIsNone) {
  writeBytes(bundle_ / "Velk_NordaAACConverter", "No program.");
  expectOneLineThatNames("its bundle cannot be loaded");
}

TEST_F(BrokenBundle, IsNamedWhenItsInterfaceFileIsMissing) {
  ASSERT_TRUE(std::filesystem::remove(interfaceFile()));
  expectOneLineThatNames("Velk_NordaAACConverter");
}

TEST_F(BrokenBundle, IsNamedWhenItsInterfaceFileIsBroken) {
  auto text = readBytes(interfaceFile());
  writeBytes(interfaceFile(), text.substr(0, text.size() / 2));
  expectOneLineThatNames("Velk_NordaAACConverter.ui");
}

TEST_F(BrokenBundle, NamesAnOutletThatItsInterfaceFileDoesNotFill) {
  auto text = readBytes(interfaceFile());
  const std::string outlet = "auditionController.monitorControl";
  const auto at = text.find(outlet);
  ASSERT_NE(at, std::string::npos);
  text.replace(at, outlet.size(), "auditionController.monitorContrary");
  writeBytes(interfaceFile(), text);
  expectOneLineThatNames("monitorContr");
}

}  // namespace
