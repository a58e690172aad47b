#pragma once

#include <string>

#include "ui/Connections.h"
#include "ui/Toolkit.h"

namespace velk {

class Velk_AUAACConverterCustomView;

/// The sheet for custom encoder settings. It edits the converter live; Cancel restores the setting
/// that was in force when it opened. Main thread only.
class Velk_AACEncodingViewSettingsController final : public ui::Object {
 public:
  /// `toolkit` must outlive the controller.
  explicit Velk_AACEncodingViewSettingsController(ui::Toolkit& toolkit);

  /// Stores the main view, which is not owned, and prepares the sheet: remembers the current
  /// setting, offers the types that the converter has, and shows the setting.
  void setOwner(Velk_AUAACConverterCustomView* view);
  /// Makes the controls show the converter's setting.
  void updateUI();

  /// Outlets and actions by name, for the skin.
  ui::Connections& connections() { return connections_; }

  ui::Sheet* settingsSheet() const { return settingsSheet_; }
  void setSettingsSheet(ui::Sheet* sheet) { settingsSheet_ = sheet; }

  void setType(ui::Object* sender);
  void setStrategy(ui::Object* sender);
  void setBitrate(ui::Object* sender);
  void setQuality(ui::Object* sender);

  void OKPressed(ui::Object* sender);
  void cancelPressed(ui::Object* sender);
  void settingsSheetDidEnd(ui::Sheet& sheet, int returnCode,
                           Velk_AUAACConverterCustomView* contextInfo);

 private:
  void offerTypes(bool withHEv2);
  void writeControls(Velk_AUAACConverterCustomView& view) const;
  void restoreInitialSetting(Velk_AUAACConverterCustomView& view) const;

  ui::Toolkit& toolkit_;
  ui::Connections connections_;

  Velk_AUAACConverterCustomView* owner = nullptr;
  ui::Sheet* settingsSheet_ = nullptr;
  ui::PopUpButton* typePopup = nullptr;
  ui::PopUpButton* strategyPopup = nullptr;
  ui::TabView* rateQualityTabView = nullptr;
  ui::PopUpButton* bitratePopup = nullptr;
  ui::TextField* rateLabel = nullptr;
  ui::Slider* qualitySlider = nullptr;
  ui::Button* OKButton = nullptr;
  ui::Button* cancelButton = nullptr;
  float initialType = 0;
  float initialStrategy = 0;
  /// The parameter's raw value: a rate index or a quality.
  float initialQualityOrRate = 0;
  /// Title of the type removed from the menu; empty if none was.
  std::string hev2Title_;
};

}  // namespace velk
