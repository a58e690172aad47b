#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "view/keys/KeyBindings.h"

namespace {

using testing::ElementsAre;
using testing::Pair;

TEST(KeyBindings, AreTheseSix) {
  EXPECT_THAT(
      velk::defaultKeyBindings(),
      ElementsAre(
          Pair("1", ElementsAre("aac_monitorSourceActionPerformedNotification",
                                "aac_listeningTestChooseAActionPerformedNotification")),
          Pair("2", ElementsAre("aac_monitorEncodedActionPerformedNotification",
                                "aac_listeningTestChooseBActionPerformedNotification")),
          Pair("A", ElementsAre("aac_monitorAActionPerformedNotification")),
          Pair("B", ElementsAre("aac_monitorBActionPerformedNotification")),
          Pair("S", ElementsAre("aac_listeningTestMonitorSourceActionPerformedNotification")),
          Pair("\xE2\x8C\xAB", ElementsAre("aac_clearClipActionPerformedNotification"))));
}

}  // namespace
