#include <cmath>
#include <limits>

#include "ListenerFixture.h"

using ValueMerging = ListenerFixture;

TEST_F(ValueMerging, DeliversTheFirstChangeAfterQuietAtTheNextPump) {
  TestListener listener(loop, journal);
  listener.listenTo(valueOf(&unit, 0));

  set(&unit, 0, 3);
  EXPECT_THAT(journal, IsEmpty());
  pumpAt(0);
  EXPECT_THAT(journal, ElementsAre("value 0 = 3"));

  set(&unit, 0, 4);
  pumpAt(1000);
  EXPECT_THAT(journal, ElementsAre("value 0 = 3", "value 0 = 4"));
}

TEST_F(ValueMerging, DeliversABurstAsOneCallWithTheNewestValue) {
  TestListener listener(loop, journal);
  listener.listenTo(valueOf(&unit, 0));

  for (int i = 1; i <= 1000; ++i) set(&unit, 0, static_cast<float>(i));
  pumpAt(0);

  EXPECT_THAT(journal, ElementsAre("value 0 = 1000"));
  EXPECT_EQ(unit.reads, 0) << "a burst of this length has to fit in the queue";
}

TEST_F(ValueMerging, HoldsALaterChangeUntilTheIntervalHasPassed) {
  TestListener listener(loop, journal);
  listener.listenTo(valueOf(&unit, 0));
  set(&unit, 0, 1);
  pumpAt(0);

  set(&unit, 0, 2);
  EXPECT_EQ(pumpAt(10), at(50));
  set(&unit, 0, 3);
  EXPECT_EQ(pumpAt(49), at(50));
  EXPECT_THAT(journal, ElementsAre("value 0 = 1"));

  EXPECT_EQ(pumpAt(50), std::nullopt);
  EXPECT_THAT(journal, ElementsAre("value 0 = 1", "value 0 = 3"));
}

TEST_F(ValueMerging, CallsAtMostOncePerIntervalThroughALongAutomation) {
  TestListener listener(loop, journal);
  listener.listenTo(valueOf(&unit, 0));

  for (int ms = 0; ms < 1000; ++ms) {
    set(&unit, 0, static_cast<float>(ms));
    pumpAt(ms);
  }

  EXPECT_EQ(journal.size(), 20U);
  EXPECT_EQ(journal[1], "value 0 = 50");
}

TEST_F(ValueMerging, CountsTheIntervalForEachParameterAndObjectSeparately) {
  int first = 0;
  int second = 0;
  TestListener listener(loop, journal);
  listener.listenTo(valueOf(&unit, 0), &first);
  listener.listenTo(valueOf(&unit, 1), &first);
  set(&unit, 0, 1);
  pumpAt(0);

  listener.listenTo(valueOf(&unit, 0), &second);
  set(&unit, 1, 2);
  set(&unit, 0, 3);
  pumpAt(10);

  EXPECT_THAT(journal, ElementsAre("value 0 = 1", "value 1 = 2", "value 0 = 3"));
  pumpAt(50);
  EXPECT_THAT(journal, ElementsAre("value 0 = 1", "value 1 = 2", "value 0 = 3", "value 0 = 3"));
}

TEST_F(ValueMerging, UsesTheIntervalOfEachListener) {
  TestListener slow(loop, journal, "slow", 0.2F);
  TestListener eager(loop, journal, "eager", 0.0F);
  slow.listenTo(valueOf(&unit, 0));
  eager.listenTo(valueOf(&unit, 0));
  set(&unit, 0, 1);
  pumpAt(0);
  journal.clear();

  set(&unit, 0, 2);
  EXPECT_EQ(pumpAt(1), at(200));
  EXPECT_THAT(journal, ElementsAre("eager: value 0 = 2"));
  pumpAt(200);
  EXPECT_THAT(journal, ElementsAre("eager: value 0 = 2", "slow: value 0 = 2"));
}

TEST_F(ValueMerging, DeliversWhatAlreadyWaitedBeforeWhatCameLater) {
  TestListener listener(loop, journal);
  listener.listenTo(valueOf(&unit, 0));
  listener.listenTo(propertyOf(&unit, 5301));
  set(&unit, 0, 1);
  pumpAt(0);
  journal.clear();

  set(&unit, 0, 2);
  pumpAt(10);
  notify(propertyOf(&unit, 5301));
  pumpAt(60);

  EXPECT_THAT(journal, ElementsAre("value 0 = 2", "property 5301"));
}

TEST_F(ValueMerging, PlacesAMergedChangeWhereTheNewestOneWasMade) {
  TestListener listener(loop, journal);
  listener.listenTo(valueOf(&unit, 0));
  listener.listenTo(beginOf(&unit, 0));
  listener.listenTo(endOf(&unit, 0));

  set(&unit, 0, 1);
  notify(beginOf(&unit, 0));
  set(&unit, 0, 2);
  notify(endOf(&unit, 0));
  pumpAt(0);

  EXPECT_THAT(journal, ElementsAre("begin 0", "value 0 = 2", "end 0"));
}

TEST_F(ValueMerging, AnnouncesAValueThatWasWrittenAgainUnchanged) {
  TestListener listener(loop, journal);
  listener.listenTo(valueOf(&unit, 0));
  set(&unit, 0, 1);
  pumpAt(0);
  set(&unit, 0, 1);
  pumpAt(100);

  EXPECT_THAT(journal, ElementsAre("value 0 = 1", "value 0 = 1"));
}

TEST_F(ValueMerging, PassesAValueThatIsNotANumberThrough) {
  TestListener listener(loop, journal);
  listener.listenTo(valueOf(&unit, 0));
  float received = 0;
  listener.onCall = [&](const Call& call) { received = call.value; };

  EXPECT_EQ(set(&unit, 0, std::numeric_limits<float>::quiet_NaN()), noErr);
  pumpAt(0);
  EXPECT_TRUE(std::isnan(received));

  set(&unit, 0, 5);
  pumpAt(50);
  EXPECT_EQ(received, 5.0F);
}
