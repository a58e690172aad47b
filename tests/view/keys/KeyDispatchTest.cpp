#include <map>

#include "view/fakes/ViewTest.h"

namespace {

using testing::Each;
using testing::ElementsAre;
using testing::IsEmpty;

class KeyDispatch : public fakes::ViewTest {
 protected:
  void SetUp() override { bind(); }
  void press(std::uint16_t keyCode) { bound->native->pressKey(keyCode); }
};

TEST_F(KeyDispatch, PostsAllNamesInOrderBeforeItHandsTheKeyOn) {
  press(18);
  EXPECT_THAT(record.calls.lines(),
              ElementsAre("posted aac_monitorSourceActionPerformedNotification",
                          "unit.setProperty 5301 = 1",
                          "auditionController.monitorControl.setSelectedSegment 0",
                          "posted aac_listeningTestChooseAActionPerformedNotification",
                          "native.interpretKeyEvents 18"));
}

TEST_F(KeyDispatch, PostsWithTheViewAsTheObject) {
  for (const std::uint16_t key : {std::uint16_t{19}, std::uint16_t{51}, std::uint16_t{0}}) {
    press(key);
  }
  EXPECT_EQ(record.notifications.names().size(), 4U);
  EXPECT_THAT(record.notifications.objects(), Each(static_cast<const void*>(&view())));
}

TEST_F(KeyDispatch, PostsForExactlyTheseCodes) {
  std::map<int, std::vector<std::string>> posted;
  for (int code = 0; code <= 0xFFFF; ++code) {
    record.notifications.clear();
    press(static_cast<std::uint16_t>(code));
    if (!record.notifications.names().empty()) {
      posted[code] = record.notifications.names();
    }
    record.calls.clear();
  }
  const std::vector<std::string> one = {"aac_monitorSourceActionPerformedNotification",
                                        "aac_listeningTestChooseAActionPerformedNotification"};
  const std::vector<std::string> two = {"aac_monitorEncodedActionPerformedNotification",
                                        "aac_listeningTestChooseBActionPerformedNotification"};
  const std::map<int, std::vector<std::string>> expected = {
      {0, {"aac_monitorAActionPerformedNotification"}},
      {1, {"aac_listeningTestMonitorSourceActionPerformedNotification"}},
      {11, {"aac_monitorBActionPerformedNotification"}},
      {18, one},
      {19, two},
      {51, {"aac_clearClipActionPerformedNotification"}},
      {83, one},
      {84, two},
  };
  EXPECT_EQ(posted, expected);
}

TEST_F(KeyDispatch, HandsOnEveryKey) {
  for (const std::uint16_t key : {std::uint16_t{10}, std::uint16_t{117}, std::uint16_t{127},
                                  std::uint16_t{0xFFFF}, std::uint16_t{1}}) {
    forget();
    press(key);
    EXPECT_EQ(record.calls.count("native.interpretKeyEvents " + std::to_string(key)), 1U);
  }
}

TEST_F(KeyDispatch, RepeatsPostAgain) {
  press(51);
  press(51);
  EXPECT_EQ(record.notifications.names().size(), 2U);
}

TEST_F(KeyDispatch, OnlyTheSelectedPageActs) {
  tabs().userClicks(1);
  forget();
  press(51);
  EXPECT_THAT(writes(), IsEmpty());
  tabs().userClicks(0);
  forget();
  press(1);
  EXPECT_THAT(writes(), IsEmpty());
}

TEST_F(KeyDispatch, ATeardownInTheMiddleOfAKeyIsSurvived) {
  int observer = 0;
  ui::NotificationCenter::defaultCenter().addObserver(
      &observer, "aac_monitorSourceActionPerformedNotification", nullptr,
      [&](const ui::Notification&) { bound->native->removeFromSuperview(); });
  press(18);
  ui::NotificationCenter::defaultCenter().removeObserver(&observer);
  EXPECT_EQ(record.notifications.names().size(), 2U);
  EXPECT_EQ(record.calls.lines().back(), "native.interpretKeyEvents 18");
}

TEST_F(KeyDispatch, LeavesAViewAloneThatAnObserverHasDestroyed) {
  int observer = 0;
  ui::NotificationCenter::defaultCenter().addObserver(
      &observer, "aac_monitorSourceActionPerformedNotification", nullptr,
      [&](const ui::Notification&) { bound->native.reset(); });
  press(18);
  ui::NotificationCenter::defaultCenter().removeObserver(&observer);
  EXPECT_EQ(bound->native, nullptr);
  EXPECT_THAT(record.notifications.names(),
              ElementsAre("aac_monitorSourceActionPerformedNotification"));
  EXPECT_THAT(record.calls.starting("native.interpretKeyEvents"), IsEmpty());
}

class KeyBindingsSheet : public fakes::ViewTest {
 protected:
  void SetUp() override { bind(); }
  velk::Velk_AACEncodingViewKeyController& controller() { return bound->objects().keyController(); }
};

TEST_F(KeyBindingsSheet, OpensOverTheSettingsButton) {
  view().showSettings(nullptr);
  EXPECT_THAT(record.calls.lines(),
              ElementsAre("sheets.beginSheet keyController.keySettingsSheet over "
                          "view.settingsButton"));
}

TEST_F(KeyBindingsSheet, DoneEndsItWithOne) {
  view().showSettings(nullptr);
  forget();
  controller().donePressed(nullptr);
  EXPECT_THAT(record.calls.lines(), ElementsAre("sheets.endSheet keyController.keySettingsSheet 1",
                                                "sheets.orderOut keyController.keySettingsSheet"));
}

TEST_F(KeyBindingsSheet, CancelEndsItWithZero) {
  view().showSettings(nullptr);
  forget();
  controller().cancelPressed(nullptr);
  EXPECT_THAT(record.calls.lines(), ElementsAre("sheets.endSheet keyController.keySettingsSheet 0",
                                                "sheets.orderOut keyController.keySettingsSheet"));
}

TEST_F(KeyBindingsSheet, LeavesTheBindingsAlone) {
  view().showSettings(nullptr);
  controller().cancelPressed(nullptr);
  EXPECT_EQ(view().keyBindings(), velk::defaultKeyBindings());
}

TEST_F(KeyBindingsSheet, GivesAndTakesItsSheet) {
  fakes::FakeSheet sheet("another");
  ui::Sheet* const before = controller().settingsSheet();
  controller().setSettingsSheet(&sheet);
  EXPECT_EQ(controller().settingsSheet(), &sheet);
  controller().setSettingsSheet(before);
}

TEST_F(KeyBindingsSheet, DoesNotKeepTheMenuStill) {
  view().showSettings(nullptr);
  unit.hostSetsPreset(2);
  settle();
  EXPECT_EQ(menu().indexOfSelectedItem(), 2);
}

}  // namespace
