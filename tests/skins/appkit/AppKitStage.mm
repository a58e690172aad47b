#include <stdexcept>

#include "skins/appkit/Host.h"
#include "skins/appkit/MainThread.h"
#include "skins/appkit/StandIns.h"
#include "skins/appkit/Strings.h"
#include "skins/appkit/ViewTree.h"
#include "view/behaviour/Stage.h"
#include "view/fakes/Record.h"

namespace behaviour {

namespace {

using appkit_test::askMain;
using appkit_test::Host;
using appkit_test::onMain;
using ui::appkit::utf8;

/// Enough for one turn of the run loop, in which a sheet or an alert is shown here.
constexpr std::chrono::milliseconds kTurn{1};

/// The AppKit skin's stage: the bundle's own view in a real window, operated by events.
class AppKitStage final : public Stage {
 public:
  explicit AppKitStage(const PrepareUnit& prepare) {
    onMain([&] {
      appkit_test::makeFactory();
      standIns_.emplace();
      record_.emplace();
      unit_.emplace(record_->calls);
      if (prepare) {
        prepare(*unit_);
      }
      host_.emplace(&*unit_);
    });
    advance(kSettled);
    record_->calls.clear();
    record_->log.clear();
    record_->notifications.clear();
  }
  ~AppKitStage() override {
    onMain([this] { host_.reset(); });
    // Lets a sheet's loop release what it still retains.
    advance(kTurn);
    onMain([this] {
      unit_.reset();
      record_.reset();
      standIns_.reset();
    });
  }

  fakes::FakeConverter& unit() override { return *unit_; }

  void click(std::string_view button) override {
    onMain([&] { Host::click(host_->outlet(button)); });
    advance(kTurn);
  }
  void selectSegment(std::string_view control, int segment) override {
    onMain([&] { Host::clickSegment(host_->outlet(control), segment); });
    advance(kTurn);
  }
  void pickItem(std::string_view popUp, int index) override {
    onMain([&] { Host::pickItem(host_->outlet(popUp), index); });
    advance(kTurn);
  }
  void dragSlider(std::string_view slider, double value) override {
    onMain([&] { Host::dragSlider(host_->outlet(slider), value); });
  }
  void clickTab(int index) override {
    onMain([&] { Host::clickTab(host_->outlet("view.tabView"), index); });
    advance(kTurn);
  }
  void pressKey(std::uint16_t keyCode) override {
    onMain([&] { host_->pressKey(keyCode); });
  }
  void clickHelp(int tag) override {
    onMain([&] { Host::click(host_->buttonWithTag(tag)); });
    advance(kTurn);
  }
  void confirmResults() override {
    onMain([&] {
      NSWindow* sheet = host_->outlet("listeningTestController.resultsSheet");
      Host::click(Host::buttonWithTitle([sheet contentView], "OK"));
    });
    advance(kTurn);
  }
  void answerAlert(bool stop) override {
    advance(kTurn);
    onMain([&] {
      NSWindow* sheet = alert();
      if (sheet == nil) {
        throw std::logic_error("no alert is open");
      }
      Host::click(Host::buttonWithTitle([sheet contentView], stop ? "Stop" : "Resume"));
    });
    // The alert's loop reports the answer only when it ends.
    advance(kTurn);
  }
  void willSaveTo(std::optional<std::filesystem::path> file) override {
    standIns_->savePanel().answer = std::move(file);
  }

  void requestSize(double width, double height) override {
    onMain([&] { [host_->view() setFrameSize:NSMakeSize(width, height)]; });
  }
  void moveToOtherSuperview() override {
    onMain([&] { host_->moveToOtherSuperview(); });
  }
  void removeFromSuperview() override {
    onMain([&] { host_->removeFromSuperview(); });
  }

  void advance(std::chrono::milliseconds time) override { appkit_test::runFor(time); }

  bool isHidden(std::string_view control) override {
    return askMain([&] { return [host_->outlet(control) isHidden] == YES; });
  }
  bool isEnabled(std::string_view control) override {
    return askMain([&] { return [host_->outlet(control) isEnabled] == YES; });
  }
  int state(std::string_view button) override {
    return askMain([&] { return static_cast<int>([buttonNamed(button) state]); });
  }
  int selectedSegment(std::string_view control) override {
    return askMain([&] {
      NSSegmentedControl* segments = host_->outlet(control);
      return static_cast<int>([segments selectedSegment]);
    });
  }
  int lamp(std::string_view indicator) override {
    return askMain([&] {
      NSLevelIndicator* lamp = host_->outlet(indicator);
      return [lamp intValue];
    });
  }
  std::string text(std::string_view field) override {
    return askMain([&] { return utf8([fieldNamed(field) stringValue]); });
  }
  bool isRed(std::string_view field) override {
    return askMain([&] {
      NSColor* color =
          [[fieldNamed(field) textColor] colorUsingColorSpaceName:NSDeviceRGBColorSpace];
      const bool bold = [[[fieldNamed(field) font] fontName]
          isEqualToString:[[NSFont boldSystemFontOfSize:12] fontName]];
      return bold && [color redComponent] > 0.4 && [color greenComponent] < 0.2 &&
             [color blueComponent] < 0.2;
    });
  }
  std::vector<std::string> itemTitles(std::string_view popUp) override {
    return askMain([&] {
      NSPopUpButton* button = host_->outlet(popUp);
      std::vector<std::string> titles;
      for (NSInteger index = 0; index < [button numberOfItems]; ++index) {
        titles.push_back(utf8([button itemTitleAtIndex:index]));
      }
      return titles;
    });
  }
  int selectedItem(std::string_view popUp) override {
    return askMain([&] {
      NSPopUpButton* button = host_->outlet(popUp);
      return static_cast<int>([button indexOfSelectedItem]);
    });
  }
  int selectedTab(std::string_view tabView) override {
    return askMain([&] {
      NSTabView* tabs = host_->outlet(tabView);
      return static_cast<int>([tabs indexOfTabViewItem:[tabs selectedTabViewItem]]);
    });
  }
  double sliderValue(std::string_view slider) override {
    return askMain([&] {
      NSSlider* control = host_->outlet(slider);
      return [control doubleValue];
    });
  }
  bool isSheetOpen(std::string_view sheet) override {
    const auto isVisible = [&] {
      return askMain([&] { return [host_->outlet(sheet) isVisible] == YES; });
    };
    if (!isVisible()) {
      advance(kTurn);
    }
    return isVisible();
  }
  std::string alertMessage() override {
    const auto message = [&] {
      return askMain([&] {
        NSWindow* sheet = alert();
        return sheet != nil ? longestText([sheet contentView]) : std::string();
      });
    };
    if (message().empty()) {
      advance(kTurn);
    }
    return message();
  }
  double width() override {
    return askMain([&] { return static_cast<double>(NSWidth([host_->view() frame])); });
  }
  double height() override {
    return askMain([&] { return static_cast<double>(NSHeight([host_->view() frame])); });
  }
  std::vector<std::string> proposedNames() override { return standIns_->savePanel().proposed; }
  std::vector<std::string> openedHelp() override { return standIns_->openedHelp(); }

  const std::vector<std::string>& logLines() override { return record_->log.lines(); }
  const std::vector<std::string>& notifications() override {
    return record_->notifications.names();
  }

 private:
  NSButton* buttonNamed(std::string_view name) const { return host_->outlet(name); }
  NSTextField* fieldNamed(std::string_view name) const { return host_->outlet(name); }

  /// The window's sheet if it is not one of the interface file's; otherwise nil.
  NSWindow* alert() const {
    NSWindow* sheet = [host_->window() attachedSheet];
    for (const char* own : {"settingsController.settingsSheet", "keyController.keySettingsSheet",
                            "listeningTestController.resultsSheet"}) {
      if (sheet == host_->outlet(own)) {
        return nil;
      }
    }
    return [sheet isVisible] ? sheet : nil;
  }

  static std::string longestText(NSView* content) {
    std::string longest;
    ui::appkit::forEachView(content, [&](NSView* view) {
      if ([view isKindOfClass:[NSTextField class]]) {
        const std::string text = utf8([static_cast<NSTextField*>(view) stringValue]);
        longest = text.size() > longest.size() ? text : longest;
      }
    });
    return longest;
  }

  std::optional<appkit_test::StandIns> standIns_;
  std::optional<fakes::Record> record_;
  std::optional<fakes::FakeConverter> unit_;
  std::optional<Host> host_;
};

}  // namespace

std::unique_ptr<Stage> setStage(const PrepareUnit& prepare) {
  return std::make_unique<AppKitStage>(prepare);
}

}  // namespace behaviour
