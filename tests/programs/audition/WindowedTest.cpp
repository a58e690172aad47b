#include <gmock/gmock.h>
#include <signal.h>

#include <QImage>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <fstream>
#include <thread>

#include "Program.h"
#include "Sound.h"
#include "ui/TemporaryFolder.h"

using testing::HasSubstr;
using testing::UnorderedElementsAre;

namespace {

using namespace std::chrono_literals;

/// The program with its window, off screen, playing to the silent clock.
class Windowed : public testing::Test {
 protected:
  Windowed() { writeSound(folder_ / "mix.wav", noise(48000, 2, 480000)); }

  /// Waits until the folder holds that many files.
  void waitForFiles(std::size_t count) {
    const auto givenUp = std::chrono::steady_clock::now() + 30s;
    while (folder_.names().size() < count) {
      ASSERT_LT(std::chrono::steady_clock::now(), givenUp);
      std::this_thread::sleep_for(5ms);
    }
  }
  /// Waits until the process has read that many bytes in all.
  static void waitUntilItHasRead(pid_t process, std::uint64_t bytes) {
    const auto givenUp = std::chrono::steady_clock::now() + 60s;
    for (std::uint64_t read = 0; read < bytes;) {
      ASSERT_LT(std::chrono::steady_clock::now(), givenUp) << read;
      std::this_thread::sleep_for(20ms);
      std::ifstream counters("/proc/" + std::to_string(process) + "/io");
      for (std::string name; counters >> name;) {
        if (name == "rchar:") counters >> read;
      }
    }
  }
  std::string path(const std::string& name) const { return folder_ / name; }

  TemporaryFolder folder_;
  Program program_{folder_.path()};
};

TEST_F(Windowed, CompletesItsFilesWhenItIsTerminated) {
  const auto process = program_.start({path("mix.wav"), "--device", "none", "--record",
                                       path("out.wav"), "--screenshot", path("shot.png")});
  // The mix, and the two temporary files of the outputs.
  waitForFiles(3);
  ::kill(process, SIGTERM);
  const auto outcome = program_.wait(process);
  EXPECT_EQ(outcome.status, 0) << outcome.err;
  EXPECT_EQ(outcome.err, "");
  EXPECT_THAT(folder_.names(), UnorderedElementsAre("mix.wav", "out.wav", "shot.png"));
  EXPECT_EQ(readSound(folder_ / "out.wav").channels(), 2U);
  EXPECT_EQ(QImage(QString::fromStdString(path("shot.png"))).width(), 560);
}

TEST_F(Windowed, ContinuesWhereItWasLeft) {
  const auto first =
      program_.run({path("mix.wav"), "--device", "none", "--seconds", "0.2", "--set", "he,abr,64"});
  EXPECT_EQ(first.status, 0) << first.err;
  const auto process =
      program_.start({"--restore", "--device", "none", "--json", "--screenshot", path("shot.png")});
  waitForFiles(2);
  ::kill(process, SIGINT);
  const auto outcome = program_.wait(process);
  EXPECT_EQ(outcome.status, 0) << outcome.err;
  EXPECT_THAT(outcome.out, HasSubstr("mix.wav"));
  EXPECT_THAT(outcome.out, HasSubstr("AAC HE"));
  EXPECT_THAT(outcome.out, HasSubstr("\"rate_kbps\":64"));
}

TEST_F(Windowed, SaysThatTheFileOfTheLastSessionIsGone) {
  EXPECT_EQ(program_.run({path("mix.wav"), "--device", "none", "--seconds", "0.1"}).status, 0);
  std::filesystem::remove(folder_ / "mix.wav");
  const auto process =
      program_.start({"--restore", "--device", "none", "--screenshot", path("shot.png")});
  waitForFiles(1);
  ::kill(process, SIGTERM);
  const auto outcome = program_.wait(process);
  EXPECT_EQ(outcome.status, 0);
  EXPECT_THAT(outcome.err, HasSubstr("there is no such file"));
}

TEST_F(Windowed, RestoresNothingWhereThereIsNothing) {
  const auto process =
      program_.start({"--restore", "--device", "none", "--screenshot", path("shot.png")});
  waitForFiles(2);
  ::kill(process, SIGTERM);
  const auto outcome = program_.wait(process);
  EXPECT_EQ(outcome.status, 0);
  EXPECT_THAT(outcome.err, HasSubstr("no session"));
}

TEST_F(Windowed, RefusesToRestoreAndToOpenAtOnce) {
  EXPECT_EQ(program_.run({path("mix.wav"), "--restore"}).status, 2);
  EXPECT_EQ(program_.run({"--restore", "--headless"}).status, 2);
}

TEST_F(Windowed, TakesLittleMemoryForAFileOfHours) {
  // Two hours of mono at 48 kHz, mostly a hole in a sparse file.
  {
    auto sound = silence(48000, 1, 48000);
    writeSound(folder_ / "long.wav", sound);
    const std::uint32_t bytes = 2U * 3600 * 48000 * 4;
    FILE* const file = std::fopen(path("long.wav").c_str(), "r+b");
    ASSERT_NE(file, nullptr);
    std::vector<char> head(4096);
    const auto got = std::fread(head.data(), 1, head.size(), file);
    const std::string text(head.data(), got);
    const auto data = text.find("data");
    ASSERT_NE(data, std::string::npos);
    const auto put = [&](std::size_t at, std::uint32_t value) {
      std::fseek(file, static_cast<long>(at), SEEK_SET);
      std::fwrite(&value, sizeof value, 1, file);
    };
    put(4, static_cast<std::uint32_t>(data) + bytes);
    put(data + 4, bytes);
    std::fclose(file);
    std::filesystem::resize_file(folder_ / "long.wav", data + 8 + bytes);
  }
  const auto process =
      program_.start({path("long.wav"), "--device", "none", "--screenshot", path("shot.png")});
  waitForFiles(3);
  waitUntilItHasRead(process, std::uint64_t{600} << 20);
  ::kill(process, SIGTERM);
  const auto outcome = program_.wait(process);
  EXPECT_EQ(outcome.status, 0) << outcome.err;
#ifndef VELK_SANITIZED
  EXPECT_LT(outcome.memory, std::int64_t{200} << 20);
#endif
}

/// Everything, installed in a folder of its own.
class Installed : public testing::Test {
 protected:
  Installed() {
    const auto install = std::string(VELK_INSTALL) + " --prefix '" + prefix_.string() + "' > '" +
                         (folder_ / "install.log").string() + "'";
    isInstalled_ = std::system(install.c_str()) == 0;
    std::filesystem::create_directory(work_);
    writeSound(work_ / "mix.wav", noise(48000, 2, 4800));
  }
  void SetUp() override { ASSERT_TRUE(isInstalled_); }

  Outcome run(const char* program, const std::vector<std::string>& arguments) {
    program_.setExecutable(prefix_ / "bin" / program);
    return program_.run(arguments);
  }
  /// A screenshot of the window in that language.
  QImage picture(const std::string& language) {
    program_.setLanguages(language);
    const auto path = work_ / (language + ".png");
    const auto outcome =
        run("aac-audition", {"--headless", "mix.wav", "--screenshot", path.string()});
    EXPECT_EQ(outcome.status, 0) << outcome.err;
    return QImage(QString::fromStdString(path.string()));
  }

  TemporaryFolder folder_;
  const std::filesystem::path prefix_ = folder_.path() / "prefix";
  const std::filesystem::path work_ = folder_.path() / "work";
  Program program_{work_};
  bool isInstalled_ = false;
};

TEST_F(Installed, RunsFromAnywhere) {
  const auto outcome = run("aac-audition", {"--headless", "--json", "mix.wav"});
  EXPECT_EQ(outcome.status, 0) << outcome.err;
  EXPECT_THAT(outcome.out, HasSubstr("\"latency_samples\""));
  const auto measured = run("aac-measure", {"mix.wav"});
  EXPECT_EQ(measured.status, 0) << measured.err;
  for (const char* const each :
       {"share/applications/aac-audition.desktop",
        "share/icons/hicolor/scalable/apps/aac-audition.svg", "share/man/man1/aac-audition.1",
        "share/man/man1/aac-measure.1", "share/bash-completion/completions/aac-audition",
        "share/metainfo/aac-audition.metainfo.xml"}) {
    EXPECT_TRUE(std::filesystem::exists(prefix_ / each)) << each;
  }
}

TEST_F(Installed, FindsTheBundleInItsOwnPlaceOnly) {
  std::filesystem::remove_all(prefix_ / "lib/velk-aac-view/Velk_NordaAACConverter.bundle");
  const auto outcome = run("aac-audition", {"--headless", "mix.wav"});
  EXPECT_EQ(outcome.status, 1);
  EXPECT_THAT(outcome.err, HasSubstr("its bundle is missing"));
}

TEST_F(Installed, SpeaksTheUsersLanguageInTheViewAndAroundIt) {
  // Numbers stay the same: they do not follow the language of the texts.
  const auto english = picture("en");
  const auto german = picture("de");
  ASSERT_EQ(english.size(), german.size());
  // The bottom line is the program's own; above it is the view.
  const QRect status(0, english.height() - 24, english.width(), 24);
  const QRect view(0, english.height() - 225, english.width(), 190);
  EXPECT_NE(english.copy(status), german.copy(status));
  EXPECT_NE(english.copy(view), german.copy(view));
  EXPECT_EQ(english, picture("en"));
}

}  // namespace
