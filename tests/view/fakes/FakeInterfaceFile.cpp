#include "view/fakes/FakeInterfaceFile.h"

#include <string>
#include <vector>

#include "contract/ConverterInterface.h"
#include "view/fakes/FakeControls.h"
#include "view/fakes/FakePopUpButton.h"
#include "view/fakes/FakeTabView.h"

namespace fakes {

namespace {

struct Wire {
  const char* control;
  const char* action;
};

constexpr Wire kButtonActions[] = {
    {"view.settingsButton", "view.showSettings:"},
    {"auditionController.resetButton", "auditionController.resetClip:"},
    {"auditionController.showDetailsButton", "auditionController.toggleShowDetails:"},
    {"auditionController.helpButton", "view.showHelp:"},
    {kListeningTestHelpButton, "view.showHelp:"},
    {"listeningTestController.sourceButton", "listeningTestController.monitorSource:"},
    {"listeningTestController.aButton", "listeningTestController.monitorA:"},
    {"listeningTestController.bButton", "listeningTestController.monitorB:"},
    {"listeningTestController.aIsSourceButton", "listeningTestController.chooseA:"},
    {"listeningTestController.bIsSourceButton", "listeningTestController.chooseB:"},
    {"listeningTestController.endTestButton", "listeningTestController.endTest:"},
    {"listeningTestController.learnModeButton", "listeningTestController.toggleLearnMode:"},
    {kResultsOKButton, "listeningTestController.okButtonPressed:"},
    {"settingsController.OKButton", "settingsController.OKPressed:"},
    {"settingsController.cancelButton", "settingsController.cancelPressed:"},
    {"keyController.doneButton", "keyController.donePressed:"},
    {"keyController.cancelButton", "keyController.cancelPressed:"},
};

constexpr Wire kPopUpActions[] = {
    {"settingsController.typePopup", "settingsController.setType:"},
    {"settingsController.strategyPopup", "settingsController.setStrategy:"},
    {"settingsController.bitratePopup", "settingsController.setBitrate:"},
};

constexpr const char* kOnOffButtons[] = {
    "auditionController.showDetailsButton",    "listeningTestController.sourceButton",
    "listeningTestController.aButton",         "listeningTestController.bButton",
    "listeningTestController.aIsSourceButton", "listeningTestController.bIsSourceButton",
    "listeningTestController.learnModeButton", "listeningTestController.saveResultsButton",
};

ui::Action actionNamed(FakeNativeView& view, const std::string& fullName) {
  const std::size_t dot = fullName.find('.');
  for (const auto& object : view.objects().objects()) {
    if (object.name != fullName.substr(0, dot)) {
      continue;
    }
    for (const auto& action : object.connections->actions()) {
      if (action.selector == fullName.substr(dot + 1)) {
        return action.action;
      }
    }
  }
  throw ui::InterfaceError("no action is named " + fullName);
}

template <class Control>
Control& controlNamed(FakeNativeView& view, const char* name) {
  if (!view.has(name)) {
    throw ui::InterfaceError(std::string("no outlet is named ") + name);
  }
  return view.control<Control>(name);
}

void fillEncoderMenu(FakeNativeView& view) {
  auto& menu = controlNamed<FakePopUpButton>(view, "view.encoderPopup");
  menu.addItem("Ondara Plus").setAction(actionNamed(view, "view.setOndaraPlusEncoder:"));
  menu.addItem("128K AAC", 2).setAction(actionNamed(view, "view.set128KAACPreset:"));
  menu.addItem("Streaming", 3).setAction(actionNamed(view, "view.setStreamingPreset:"));
  menu.addItem("High Quality", 4).setAction(actionNamed(view, "view.setHighQualityPreset:"));
  menu.addItem("");
  menu.addItem("Custom…").setAction(actionNamed(view, "view.setCustomEncoder:"));
}

void fillSettingsMenus(FakeNativeView& view) {
  auto& types = controlNamed<FakePopUpButton>(view, "settingsController.typePopup");
  for (const char* title : {"AAC", "AAC HE", "AAC HEv2"}) {
    types.addItem(title);
  }
  auto& strategies = controlNamed<FakePopUpButton>(view, "settingsController.strategyPopup");
  for (const char* title : {"ABR", "VBRC", "VBR"}) {
    strategies.addItem(title);
  }
  auto& rates = controlNamed<FakePopUpButton>(view, "settingsController.bitratePopup");
  for (const auto rate : velk::bitRates) {
    rates.addItem(std::to_string(rate) + " Kbps");
  }
}

void fillKeyFields(FakeNativeView& view) {
  constexpr Wire kTexts[] = {
      {"keyController.monitorSourceAuditionField", "1"},
      {"keyController.monitorCodecAuditionField", "2"},
      {"keyController.clearClipField", "\u232B"},
      {"keyController.monitorSourceTestField", "S"},
      {"keyController.monitorATestField", "A"},
      {"keyController.monitorBTestField", "B"},
      {"keyController.chooseATestField", "1"},
      {"keyController.chooseBTestField", "2"},
  };
  for (const auto& [field, text] : kTexts) {
    controlNamed<FakeTextField>(view, field).setInitialText(text);
  }
}

void setInitialState(FakeNativeView& view) {
  controlNamed<FakeButton>(view, "auditionController.helpButton").layOut(false, {500, 181});
  controlNamed<FakeTabView>(view, "auditionController.monoStereoTabView").layOut(true, {});
  controlNamed<FakeTextField>(view, "auditionController.showDetailsText")
      .setInitialText("Show Details");
  controlNamed<FakeTextField>(view, "listeningTestController.cycleLabel")
      .setInitialText("Test Cycle: 1");
  controlNamed<FakeTextField>(view, "listeningTestController.aResultsText").layOut(true, {});
  controlNamed<FakeTextField>(view, "listeningTestController.bResultsText").layOut(true, {});
}

}  // namespace

void layOutInterface(FakeNativeView& view, CallLog& log) {
  for (const char* name : {kListeningTestHelpButton, kResultsOKButton}) {
    view.addControl(name, std::make_unique<FakeButton>(log, name));
  }
  for (const auto& [control, action] : kButtonActions) {
    controlNamed<FakeButton>(view, control).setAction(actionNamed(view, action));
  }
  for (const auto& [control, action] : kPopUpActions) {
    controlNamed<FakePopUpButton>(view, control).setAction(actionNamed(view, action));
  }
  controlNamed<FakeSegmentedControl>(view, "auditionController.monitorControl")
      .setAction(actionNamed(view, "auditionController.monitorChanged:"));
  controlNamed<FakeSlider>(view, "settingsController.qualitySlider")
      .setAction(actionNamed(view, "settingsController.setQuality:"));
  for (const char* name : kOnOffButtons) {
    controlNamed<FakeButton>(view, name).setOnOff(true);
  }
  controlNamed<FakeButton>(view, "auditionController.helpButton").setTag(1000);
  controlNamed<FakeButton>(view, kListeningTestHelpButton).setTag(1001);
  fillEncoderMenu(view);
  fillSettingsMenus(view);
  fillKeyFields(view);
  setInitialState(view);
}

}  // namespace fakes
