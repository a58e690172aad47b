#pragma once

#include <chrono>
#include <filesystem>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "view/fakes/FakeConverter.h"

namespace behaviour {

/// How every skin's interface file arranges the encoder menu: the presets, a separator, the custom
/// entries, newest first, and last the item that opens the custom-encoder sheet.
inline constexpr int kOndaraPlusItem = 0;
inline constexpr int k128KItem = 1;
inline constexpr int kStreamingItem = 2;
inline constexpr int kHighQualityItem = 3;
inline constexpr int kNewestCustomItem = 5;

/// Long enough for every event of the unit and all deferred work to arrive.
inline constexpr std::chrono::milliseconds kSettled{120};

/// A bound view with a unit that records every call, driven the way a user, a host or the unit
/// would. Behaviour is written once against this interface; every skin brings a stage of its own.
///
/// Controls are named by the outlet that they fill: "auditionController.monitorControl",
/// "view.encoderPopup". An unknown name throws.
///
/// The view is in a window and shows the audition page; everything that binding caused has arrived.
class Stage {
 public:
  virtual ~Stage() = default;

  /// The unit that the view is bound to: its values, the failures to make, and in its log the calls
  /// it received.
  virtual fakes::FakeConverter& unit() = 0;

  // What a user does.
  virtual void click(std::string_view button) = 0;
  virtual void selectSegment(std::string_view control, int segment) = 0;
  /// Picks an item of a pop-up menu by index, as with the mouse.
  virtual void pickItem(std::string_view popUp, int index) = 0;
  virtual void dragSlider(std::string_view slider, double value) = 0;
  /// Clicks a tab of the main tab view.
  virtual void clickTab(int index) = 0;
  /// A press of the key at that position (virtual key code), with the view as first responder.
  virtual void pressKey(std::uint16_t keyCode) = 0;
  /// Clicks the help button with that tag (1000 audition, 1001 listening test).
  virtual void clickHelp(int tag) = 0;
  /// Clicks OK on the results sheet.
  virtual void confirmResults() = 0;
  /// Answers the alert that is open.
  virtual void answerAlert(bool stop) = 0;
  /// The answer of the next save panel; no value means Cancel.
  virtual void willSaveTo(std::optional<std::filesystem::path> file) = 0;

  // What a host does.
  virtual void requestSize(double width, double height) = 0;
  /// Puts the view under another parent of the same window.
  virtual void moveToOtherSuperview() = 0;
  virtual void removeFromSuperview() = 0;

  /// Lets time pass: timers fire, unit events and deferred work arrive.
  virtual void advance(std::chrono::milliseconds time) = 0;

  // What can be seen.
  virtual bool isHidden(std::string_view control) = 0;
  virtual bool isEnabled(std::string_view control) = 0;
  virtual int state(std::string_view button) = 0;
  virtual int selectedSegment(std::string_view control) = 0;
  virtual int lamp(std::string_view indicator) = 0;
  /// The text that a field shows; a level through the field's own format, "−0.1 dB".
  virtual std::string text(std::string_view field) = 0;
  /// Whether a field shows its text in the over-full-scale colour.
  virtual bool isRed(std::string_view field) = 0;
  virtual std::vector<std::string> itemTitles(std::string_view popUp) = 0;
  virtual int selectedItem(std::string_view popUp) = 0;
  virtual int selectedTab(std::string_view tabView) = 0;
  virtual double sliderValue(std::string_view slider) = 0;
  virtual bool isSheetOpen(std::string_view sheet) = 0;
  /// The message of the open alert; empty when none is open.
  virtual std::string alertMessage() = 0;
  virtual double width() = 0;
  virtual double height() = 0;
  /// Proposed names of the save panels so far.
  virtual std::vector<std::string> proposedNames() = 0;
  /// Help anchors opened so far.
  virtual std::vector<std::string> openedHelp() = 0;

  /// Lines written to the log since the stage was set.
  virtual const std::vector<std::string>& logLines() = 0;
  /// Names of the notifications posted since the stage was set, in order.
  virtual const std::vector<std::string>& notifications() = 0;
};

/// A unit before it is bound: channel count, first values and failures to set up.
using PrepareUnit = std::function<void(fakes::FakeConverter&)>;

/// Sets the stage for the skin under test, with English texts and numbers.
std::unique_ptr<Stage> setStage(const PrepareUnit& prepare = {});

}  // namespace behaviour
