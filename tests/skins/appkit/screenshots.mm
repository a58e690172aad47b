// Draws every page and sheet of the view into PNG files of a folder.
// usage: velk_appkit_screenshots -folder FOLDER   (on an X server: tests/skins/appkit/with-display)
// The toolkit would open a bare argument as a document.

#import <AppKit/AppKit.h>

#include <cstdio>
#include <filesystem>
#include <string>
#include <string_view>

#include "skins/appkit/Application.h"
#include "skins/appkit/MainThread.h"
#include "skins/appkit/Strings.h"
#include "view/behaviour/Stage.h"

namespace {

using behaviour::kSettled;
using behaviour::Stage;
using ui::appkit::nsString;

velk::PeakStatistics hotMix() {
  velk::PeakStatistics statistics{};
  statistics[velk::kPeakStatsSlot_SourceLeft] = {-0.1F, 0.4F, 0, 12};
  statistics[velk::kPeakStatsSlot_SourceRight] = {-0.1F, 0.2F, 0, 3};
  statistics[velk::kPeakStatsSlot_EncodedLeft] = {0.9F, 1.2F, 31, 57};
  statistics[velk::kPeakStatsSlot_EncodedRight] = {0.7F, 1.1F, 18, 44};
  return statistics;
}

class Album {
 public:
  explicit Album(std::filesystem::path folder) : folder_(std::move(folder)) {}

  void shoot() {
    shootAudition();
    shootMono();
    shootTest();
    shootSheets();
  }

 private:
  void shootAudition() {
    const auto stage = behaviour::setStage();
    save(*stage, "audition");
    stage->click("auditionController.showDetailsButton");
    save(*stage, "details");
    stage->unit().statistics = hotMix();
    save(*stage, "details-overs");
    stage->click("auditionController.showDetailsButton");
    save(*stage, "audition-overs");
  }

  void shootMono() {
    const auto stage = behaviour::setStage([](fakes::FakeConverter& unit) { unit.channels = 1; });
    stage->click("auditionController.showDetailsButton");
    save(*stage, "mono");
  }

  void shootTest() {
    const auto stage = behaviour::setStage();
    stage->clickTab(1);
    save(*stage, "test");
    stage->click("listeningTestController.learnModeButton");
    stage->click("listeningTestController.aIsSourceButton");
    save(*stage, "learning");
    stage->clickTab(0);
    save(*stage, "alert");
    stage->answerAlert(false);
    stage->click("listeningTestController.endTestButton");
    save(*stage, "results");
  }

  void shootSheets() {
    const auto stage = behaviour::setStage();
    stage->click("view.settingsButton");
    save(*stage, "keys");
    stage->click("keyController.doneButton");
    stage->advance(kSettled);
    stage->pickItem("view.encoderPopup", behaviour::kNewestCustomItem);
    save(*stage, "custom");
    stage->pickItem("settingsController.strategyPopup", 2);
    save(*stage, "custom-quality");
  }

  void save(Stage& stage, const std::string& name) {
    stage.advance(kSettled * 2);
    appkit_test::onMain([&] {
      NSArray* windows = [NSApp windows];
      for (NSUInteger index = 0; index < [windows count]; ++index) {
        NSWindow* window = [windows objectAtIndex:index];
        if ([window isVisible] && [[window title] isEqualToString:@"Host"]) {
          NSWindow* sheet = [window attachedSheet];
          write([sheet != nil ? sheet : window contentView], folder_ / (name + ".png"));
        }
      }
    });
  }

  static void write(NSView* view, const std::filesystem::path& file) {
    [view lockFocus];
    NSBitmapImageRep* picture =
        [[[NSBitmapImageRep alloc] initWithFocusedViewRect:[view bounds]] autorelease];
    [view unlockFocus];
    NSData* png = [picture representationUsingType:NSPNGFileType
                                        properties:[NSDictionary dictionary]];
    if (![png writeToFile:nsString(file.string()) atomically:YES]) {
      std::fprintf(stderr, "cannot write %s\n", file.c_str());
    }
  }

  std::filesystem::path folder_;
};

}  // namespace

int main(int argc, char** argv) {
  if (argc != 3 || std::string_view(argv[1]) != "-folder") {
    std::fprintf(stderr, "usage: velk_appkit_screenshots -folder FOLDER\n");
    return 2;
  }
  const std::filesystem::path folder = argv[2];
  std::filesystem::create_directories(folder);
  const appkit_test::Application application;
  return appkit_test::runApplication([&] {
    Album(folder).shoot();
    return 0;
  });
}
