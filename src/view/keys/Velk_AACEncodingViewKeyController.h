#pragma once

#include "ui/Connections.h"
#include "ui/Toolkit.h"

namespace velk {

class Velk_AUAACConverterCustomView;

/// The sheet that shows the key bindings. It changes nothing, whichever button closes it. Main
/// thread only.
class Velk_AACEncodingViewKeyController final : public ui::Object {
 public:
  /// `toolkit` must outlive the controller.
  explicit Velk_AACEncodingViewKeyController(ui::Toolkit& toolkit);

  /// Stores the main view, which is not owned.
  void setOwner(Velk_AUAACConverterCustomView* view) { owner = view; }

  /// Outlets and actions by name, for the skin.
  ui::Connections& connections() { return connections_; }

  ui::Sheet* settingsSheet() const { return keySettingsSheet; }
  void setSettingsSheet(ui::Sheet* sheet) { keySettingsSheet = sheet; }

  void donePressed(ui::Object* sender);
  void cancelPressed(ui::Object* sender);
  void settingsSheetDidEnd(ui::Sheet& sheet, int returnCode,
                           Velk_AUAACConverterCustomView* contextInfo);

 private:
  ui::Toolkit& toolkit_;
  ui::Connections connections_;

  Velk_AUAACConverterCustomView* owner = nullptr;
  ui::Sheet* keySettingsSheet = nullptr;
  // The interface file sets their texts.
  ui::TextField* monitorSourceAuditionField = nullptr;
  ui::TextField* monitorCodecAuditionField = nullptr;
  ui::TextField* clearClipField = nullptr;
  ui::TextField* monitorSourceTestField = nullptr;
  ui::TextField* monitorATestField = nullptr;
  ui::TextField* monitorBTestField = nullptr;
  ui::TextField* chooseATestField = nullptr;
  ui::TextField* chooseBTestField = nullptr;
  ui::Button* doneButton = nullptr;
  ui::Button* cancelButton = nullptr;
};

}  // namespace velk
