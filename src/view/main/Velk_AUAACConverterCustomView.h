#pragma once

#include <cstdint>
#include <functional>
#include <memory>
#include <string>
#include <string_view>
#include <utility>

#include "contract/ConverterInterface.h"
#include "ui/Connections.h"
#include "ui/CustomView.h"
#include "ui/RunLoop.h"
#include "ui/TabView.h"
#include "ui/Toolkit.h"
#include "view/keys/KeyBindings.h"

namespace velk {

class Velk_AACEncodingViewAuditionController;
class Velk_AACEncodingViewKeyController;
class Velk_AACEncodingViewListeningTestController;
class Velk_AACEncodingViewSettingsController;
class TabController;

/// The main view, bound to one converter unit that everybody else reaches only through it. It
/// directs the four controllers, which the interface file owns. Main thread only.
///
/// The operations of the encoder menu are implemented in encoder_menu/, those of the keys in keys/.
class Velk_AUAACConverterCustomView final : public ui::Object,
                                            public ui::CustomView,
                                            public ui::TabViewDelegate {
 public:
  /// `initWithFrame:`. Both must outlive the view.
  Velk_AUAACConverterCustomView(ui::NativeView& native, ui::Toolkit& toolkit);
  /// Runs `cleanup` unless the view has already left its superview; logs what that throws.
  ~Velk_AUAACConverterCustomView() override;

  /// The controllers that the interface file created; they must outlive the view.
  struct Controllers {
    Velk_AACEncodingViewAuditionController* auditionController;
    Velk_AACEncodingViewListeningTestController* listeningTestController;
    Velk_AACEncodingViewKeyController* keyController;
    Velk_AACEncodingViewSettingsController* settingsController;
  };
  void setControllers(const Controllers& controllers);

  /// Outlets and actions by name, for the skin.
  ui::Connections& connections() { return connections_; }
  ui::Toolkit& toolkit() const { return toolkit_; }

  // Binding and teardown.
  /// Binds the view to a unit, which is not owned and must live until the teardown. A parameter
  /// that cannot be read is an assertion failure. May be called again for another unit.
  void setAU(AudioUnit unit);
  /// Unbinds, ends everything that runs and cancels what is pending. Runs once per view: when it
  /// leaves its superview or, failing that, when it is destroyed.
  void cleanup();

  // What the toolkit sends.
  void viewWillMoveToSuperview(bool hasNewSuperview) override;
  void viewDidMoveToWindow() override;
  void setFrameSize(ui::Size size) override;
  void keyDown(const ui::KeyEvent& event) override;

  // Tabs.
  TabController* controllerForTabAtIndex(int index) const;
  bool shouldSelectTabViewItem(ui::TabViewItem* item) override;
  void willSelectTabViewItem(ui::TabViewItem* item) override;
  void showEndTestAlert(ui::TabViewItem* requestedItem);
  void testAlertSheetDidEnd(ui::Window& sheet, int returnCode, ui::TabViewItem* contextInfo);

  // Switches of the unit's state.
  bool isPerformingListeningTest() const { return isPerformingListeningTest_; }
  void setPerformingListeningTest(bool performing);
  bool isMonitoringEncoder() const { return monitoringEncoder_; }
  void monitorEncoder(bool encoded);

  void showHelp(ui::Object* sender);
  /// In points. The only way in which the view changes its own size.
  void changeHeight(double height);

  // Typed access to the converter. A parameter that cannot be read or written is an assertion
  // failure.
  void setParameterValue(AudioUnitParameterID parameter, float value);
  float getParameterValue(AudioUnitParameterID parameter) const;
  float getFormat() const;
  void setFormat(float format);
  float getStrategy() const;
  void setStrategy(float strategy);
  /// Index into `bitRates`. Refused with a log line, reading as 0.0, while the strategy is VBR.
  float getRate() const;
  void setRate(float rate);
  /// Refused with a log line, reading as 0.0, unless the strategy is VBR.
  float getQuality() const;
  void setQuality(float quality);
  /// Channels of the unit's output, 0 on any error.
  std::uint32_t getNumChannelsFromAudioUnit() const;
  std::uint32_t numChannels() const { return numChannels_; }
  /// Fills the block. After a failed read every record holds sample peak -60, no sample clips, an
  /// inter-sample clip count of -60 and the inter-sample peak that the caller put there.
  void getPeakStats(PeakStatistics& block) const;
  void isSourceClipped(bool& sourceClipped, bool& encodedClipped) const;
  void resetClippingAndPeaks();
  bool hasHEV2() const { return hasHEV2_; }

  // Listening to the converter.
  void priv_addListenerForParameter(AudioUnitParameterID parameter, AudioUnitScope scope,
                                    AudioUnitElement element);
  void priv_removeListeners();
  /// Turns one event into a refresh or a notification about the registered `object`.
  void priv_eventListener(void* object, const AudioUnitEvent& event, float value);

  // Encoder menu.
  std::string stringForFormat(float format) const;
  std::string stringForStrategy(float strategy) const;
  std::string stringForBitRate(float rate) const;
  bool isEncoderOndaraPlus() const;
  bool isEncoderHighQuality() const;
  void setPreset(UInt32 index);
  void setOndaraPlusEncoder(ui::Object* sender);
  void set128KAACPreset(ui::Object* sender);
  void setStreamingPreset(ui::Object* sender);
  void setHighQualityPreset(ui::Object* sender);
  void setCustomEncoder(ui::Object* sender);
  void setCustomFormat(ui::Object* sender);
  void showSettings(ui::Object* sender);
  void updatePopup();
  void configSheetDidClose();
  std::string getEncoderName() const;

  /// Label of a key by its position code; empty for a code without one.
  static std::string unicodeStringForKeyCode(std::uint16_t keyCode);
  const KeyBindings& keyBindings() const { return keyBindings_; }

  /// A text of the bundle's strings table.
  std::string localized(std::string_view key) const;

 private:
  void declareConnections();
  void addPropertyListener(AudioUnitPropertyID property);
  bool unitOffersHEV2() const;
  void attachKey(int tag, const ui::Dictionary& key);
  bool applyPreset(UInt32 index) const;
  void showEncoderItem(int index);
  bool isTornDown() const { return inUse_ == nullptr; }
  /// `work` as an end function that does nothing after the teardown.
  template <class Work>
  auto whileInUse(Work work) const {
    return
        [inUse = std::weak_ptr<const bool>(inUse_), work = std::move(work)](auto&&... arguments) {
          if (!inUse.expired()) {
            work(std::forward<decltype(arguments)>(arguments)...);
          }
        };
  }

  ui::NativeView& native_;
  ui::Toolkit& toolkit_;
  ui::Connections connections_;

  Velk_AACEncodingViewAuditionController* auditionController = nullptr;
  Velk_AACEncodingViewListeningTestController* listeningTestController = nullptr;
  Velk_AACEncodingViewKeyController* keyController = nullptr;
  Velk_AACEncodingViewSettingsController* settingsController = nullptr;
  AudioUnit mAU = nullptr;
  AUEventListenerRef mAUEventListener = nullptr;
  ui::Button* settingsButton = nullptr;
  ui::PopUpButton* encoderPopup = nullptr;
  /// The item that the last refresh of the menu selected.
  int shownEncoderItem_ = 0;
  ui::TabView* tabView = nullptr;
  bool monitoringEncoder_ = false;
  std::uint32_t numChannels_ = 0;
  bool isPerformingListeningTest_ = false;
  bool isCustomConfigurationSheetOpen = false;
  bool hasHEV2_ = false;
  bool allowSizeChange = false;
  KeyBindings keyBindings_;
  /// Whether the tab controllers know their owner, so that there is something to tear down.
  bool hasBeenBound_ = false;
  bool isAlertOpen_ = false;
  std::unique_ptr<ui::Deferred> pendingExpand_;
  /// Null after the teardown.
  std::shared_ptr<const bool> inUse_;
  /// Never null. Expires for work that outlives the view.
  const std::shared_ptr<const bool> exists_;
};

}  // namespace velk
