#include <unistd.h>

#include <filesystem>
#include <fstream>

#include "view/fakes/ViewTest.h"

namespace {

/// A language whose word order differs, in a folder of its own.
class Translation : public fakes::ViewTest {
 protected:
  Translation()
      : resources(std::filesystem::path(testing::TempDir()) /
                  (testing::UnitTest::GetInstance()->current_test_info()->name() +
                   std::to_string(::getpid()))) {
    std::filesystem::create_directories(resources / "xx.lproj");
  }
  ~Translation() override {
    bound.reset();
    std::filesystem::remove_all(resources);
  }
  void translate(const std::string& table) {
    std::ofstream(resources / "xx.lproj" / "AUDravoAACStrings.strings") << table;
  }
  void bindTranslated(const fakes::FakeConverter::Setting& setting) {
    unit.setSetting(setting);
    bound = std::make_unique<fakes::BoundView>(record, unit, resources, "xx", "de_DE");
  }

  std::filesystem::path resources;
};

TEST_F(Translation, MayPutThePartsOfATitleInAnotherOrder) {
  translate(
      "\"%@ %@ %@ Kbps\" = \"%3$@ kbit/s (%1$@, %2$@)\";\n"
      "\"%@ %@ Quality: %@\" = \"Güte %3$@: %2$@ %1$@\";\n");
  bindTranslated({0, 0, 10});
  EXPECT_EQ(view().getEncoderName(), "128 kbit/s (AAC, ABR)");
  unit.setSetting({1, 2, 5000});
  view().updatePopup();
  EXPECT_EQ(view().getEncoderName(), "Güte 5000: VBR AAC HE");
}

TEST_F(Translation, MayPutWordsAroundThePlaceholders) {
  translate("\"%@ %@ %@ Kbps\" = \"Codec %@ mit %@ bei %@\";\n");
  bindTranslated({2, 0, 3});
  EXPECT_EQ(view().getEncoderName(), "Codec AAC HEv2 mit ABR bei 32");
}

TEST_F(Translation, TranslatesNamesButNotTheDash) {
  translate("\"AAC\" = \"Aacé\";\n\"ABR\" = \"Mittel\";\n\"-\" = \"nichts\";\n");
  bindTranslated({0, 0, 99});
  EXPECT_EQ(view().getEncoderName(), "Aacé Mittel - Kbps");
}

TEST_F(Translation, WithoutAKeyShowsTheKey) {
  translate("");
  bindTranslated({0, 1, 3});
  EXPECT_EQ(view().getEncoderName(), "AAC VBRC 32 Kbps");
}

TEST_F(Translation, ReachesTheSheetAndTheAlert) {
  translate("\"Base Bit Rate:\" = \"Grundrate:\";\n\"Stop\" = \"Halt\";\n");
  bindTranslated({0, 1, 3});
  view().setCustomEncoder(nullptr);
  EXPECT_EQ(bound->control<fakes::FakeTextField>("settingsController.rateLabel").text(),
            "Grundrate:");
  view().showEndTestAlert(nullptr);
  EXPECT_EQ(bound->toolkit.sheets.alertTexts().alternateButton, "Halt");
}

}  // namespace
