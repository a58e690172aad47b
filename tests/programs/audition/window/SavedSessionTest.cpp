#include <gtest/gtest.h>

#include <memory>

#include "programs/audition/SavedSession.h"
#include "programs/audition/window/RecentFiles.h"
#include "ui/TemporaryFolder.h"

using host::audition::RecentFiles;
using host::audition::SavedSession;

namespace {

class Settings : public testing::Test {
 protected:
  Settings() { reopen(); }
  /// Reads the settings anew, as the program's next run does.
  void reopen() {
    settings_.reset();
    settings_ = std::make_unique<QSettings>(QString::fromStdString(folder_ / "settings.ini"),
                                            QSettings::IniFormat);
  }

  TemporaryFolder folder_;
  std::unique_ptr<QSettings> settings_;
};

TEST_F(Settings, GiveTheSessionBackAsItWasSaved) {
  SavedSession session;
  session.file = "/music/a mix, the second; ä.wav";
  session.channels = {3, 4};
  session.position = std::int64_t{9} * 3600 * 96000;
  session.loop = host::LoopRange{std::int64_t{1} << 33, (std::int64_t{1} << 33) + 96000};
  session.loopIsOn = true;
  session.device = "PulseAudio: Built-in Audio";
  session.setting = host::EncoderSetting{1, 0, 7};
  save(session, *settings_);
  reopen();
  EXPECT_EQ(host::audition::savedSession(*settings_), session);
}

TEST_F(Settings, ForgetWhatTheSessionBeforeHad) {
  SavedSession session;
  session.file = "/a.wav";
  session.loop = host::LoopRange{1, 2};
  session.setting = host::EncoderSetting{0, 2, 100};
  save(session, *settings_);
  session.loop.reset();
  session.setting.reset();
  save(session, *settings_);
  reopen();
  EXPECT_EQ(host::audition::savedSession(*settings_), session);
}

TEST_F(Settings, HaveNoSessionAtFirst) {
  EXPECT_EQ(host::audition::savedSession(*settings_), std::nullopt);
}

TEST_F(Settings, LeaveOutWhatMakesNoSense) {
  writeBytes(folder_ / "settings.ini",
             "[session]\nfile=/a.wav\nchannels=left\nposition=soon\nloopBegin=9\nloopEnd=3\n"
             "loopIsOn=true\nencoder=mp3,cbr,7\n");
  reopen();
  SavedSession expected;
  expected.file = "/a.wav";
  EXPECT_EQ(host::audition::savedSession(*settings_), expected);
}

TEST_F(Settings, KeepTheFilesThatWereOpenedLastTheNewestFirst) {
  RecentFiles recent(*settings_);
  EXPECT_TRUE(recent.paths().isEmpty());
  for (const char* const path : {"/a.wav", "/b.wav", "/c, d.wav", "/a.wav"}) recent.add(path);
  reopen();
  RecentFiles again(*settings_);
  EXPECT_EQ(again.paths(), (QStringList{"/a.wav", "/c, d.wav", "/b.wav"}));
  again.remove("/b.wav");
  EXPECT_EQ(again.paths(), (QStringList{"/a.wav", "/c, d.wav"}));
  again.clear();
  EXPECT_TRUE(again.paths().isEmpty());
}

TEST_F(Settings, KeepNoMoreFilesThanAMenuTakes) {
  RecentFiles recent(*settings_);
  for (int i = 0; i < 30; ++i) recent.add(QString("/%1.wav").arg(i));
  EXPECT_EQ(recent.paths().size(), RecentFiles::kMost);
  EXPECT_EQ(recent.paths().front(), "/29.wav");
}

}  // namespace
