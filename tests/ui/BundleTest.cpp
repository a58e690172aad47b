#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <sys/stat.h>

#include <string>
#include <vector>

#include "ui/Bundle.h"
#include "ui/Log.h"
#include "ui/TemporaryFolder.h"

namespace {

using testing::AllOf;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

class BundleTest : public testing::Test {
 public:
  ~BundleTest() override { ui::setLogSink(earlier_); }

 protected:
  BundleTest() {
    for (const char* language : {"en", "de", "fr"}) {
      std::filesystem::create_directory(folderOf(language));
      writeBytes(folderOf(language) / "Texts.strings",
                 std::string("\"Stop\" = \"Stop in ") + language + "\";");
    }
    earlier_ = ui::setLogSink([this](std::string_view line) { lines.emplace_back(line); });
  }

  std::filesystem::path folderOf(const std::string& language) const {
    return resources / (language + ".lproj");
  }
  std::string languageFor(const std::vector<std::string>& languages) const {
    return ui::Bundle(resources.path(), languages).language();
  }

  const TemporaryFolder resources;
  std::vector<std::string> lines;

 private:
  ui::LogSink earlier_;
};

TEST_F(BundleTest, UsesTheFirstPreferredLanguageThatItHas) {
  EXPECT_EQ(languageFor({"fr", "de"}), "fr");
  EXPECT_EQ(languageFor({"sv", "de", "fr"}), "de");
}

TEST_F(BundleTest, FallsBackToEnglish) {
  EXPECT_EQ(languageFor({}), "en");
  EXPECT_EQ(languageFor({"sv", ""}), "en");
}

TEST_F(BundleTest, SettlesForTheLanguageWithoutItsRegion) {
  EXPECT_EQ(languageFor({"de_AT", "fr"}), "de");
  EXPECT_EQ(languageFor({"fr-CA.UTF-8"}), "fr");
}

TEST_F(BundleTest, PrefersTheLanguageOfTheRegionItself) {
  std::filesystem::create_directory(folderOf("de_CH"));
  EXPECT_EQ(languageFor({"de_CH"}), "de_CH");
}

TEST_F(BundleTest, NeverLeavesItsFolderForALanguage) {
  const std::string outside = "../" + resources.path().filename().string() + "/de";
  EXPECT_EQ(languageFor({outside}), "en");
}

TEST_F(BundleTest, GivesTheTextOfItsLanguage) {
  const ui::Bundle bundle(resources.path(), {"de"});
  EXPECT_EQ(bundle.localizedString("Stop", "Texts"), "Stop in de");
  EXPECT_EQ(bundle.resources(), resources.path());
}

TEST_F(BundleTest, GivesTheKeyForAMissingKeyOrTable) {
  const ui::Bundle bundle(resources.path(), {"de"});
  EXPECT_EQ(bundle.localizedString("Resume", "Texts"), "Resume");
  EXPECT_EQ(bundle.localizedString("Stop", "Others"), "Stop");
  EXPECT_THAT(lines, IsEmpty());
}

TEST_F(BundleTest, GivesTheKeyWhenThereAreNoResourcesAtAll) {
  const ui::Bundle bundle(resources / "nowhere", {"de"});
  EXPECT_EQ(bundle.language(), "en");
  EXPECT_EQ(bundle.localizedString("Stop", "Texts"), "Stop");
}

TEST_F(BundleTest, LogsABrokenTableOnceAndGivesTheKeys) {
  writeBytes(folderOf("de") / "Texts.strings", "\"Stop\" = \"Halt\";\n\"Resume\" = ;");
  const ui::Bundle bundle(resources.path(), {"de"});
  EXPECT_EQ(bundle.localizedString("Stop", "Texts"), "Stop");
  EXPECT_EQ(bundle.localizedString("Stop", "Texts"), "Stop");
  EXPECT_THAT(lines, ElementsAre(AllOf(HasSubstr("Texts.strings"), HasSubstr("line 2"))));
}

TEST_F(BundleTest, LogsAnUnreadableTableOnce) {
  std::filesystem::remove(folderOf("de") / "Texts.strings");
  std::filesystem::create_directory(folderOf("de") / "Texts.strings");
  const ui::Bundle bundle(resources.path(), {"de"});
  EXPECT_EQ(bundle.localizedString("Stop", "Texts"), "Stop");
  EXPECT_EQ(bundle.localizedString("Resume", "Texts"), "Resume");
  EXPECT_THAT(lines, ElementsAre(HasSubstr("Texts.strings")));
}

TEST_F(BundleTest, ReadsATableWhenItIsFirstAskedForAndKeepsIt) {
  const ui::Bundle bundle(resources.path(), {"de"});
  writeBytes(folderOf("de") / "Texts.strings", "Stop = Halt;");
  EXPECT_EQ(bundle.localizedString("Stop", "Texts"), "Halt");
  writeBytes(folderOf("de") / "Texts.strings", "Stop = Ende;");
  EXPECT_EQ(bundle.localizedString("Stop", "Texts"), "Halt");
}

}  // namespace
