#include "ListenerFixture.h"

/// Two listeners to one unit, as two views of it have.
class Sender : public ListenerFixture {
 protected:
  void SetUp() override {
    mine.listenTo(valueOf(&unit, 0), &me);
    other.listenTo(valueOf(&unit, 0), &you);
  }

  int me = 0;
  int you = 0;
  TestListener mine{loop, journal, "mine"};
  TestListener other{loop, journal, "other"};
};

TEST_F(Sender, IsNotCalledBackWhileEveryoneElseIs) {
  set(&unit, 0, 1, mine.reference, &me);
  pumpAt(0);
  EXPECT_THAT(journal, ElementsAre("other: value 0 = 1"));
}

TEST_F(Sender, IsNotCalledBackForGesturesAndProperties) {
  for (TestListener* listener : {&mine, &other}) {
    listener->listenTo(beginOf(&unit, 0), &me);
    listener->listenTo(propertyOf(&unit, 5301), &me);
  }
  notify(beginOf(&unit, 0), mine.reference, &me);
  notify(propertyOf(&unit, 5301), mine.reference, &me);
  pumpAt(0);
  EXPECT_THAT(journal, ElementsAre("other: begin 0", "other: property 5301"));
}

TEST_F(Sender, IsOneObjectOfItsListenerWhenNamed) {
  mine.listenTo(valueOf(&unit, 0), &you);
  set(&unit, 0, 1, mine.reference, &me);
  pumpAt(0);
  EXPECT_THAT(journal, ElementsAre("other: value 0 = 1", "mine: value 0 = 1"));
}

TEST_F(Sender, IsTheWholeListenerWithoutAnObject) {
  mine.listenTo(valueOf(&unit, 0), &you);
  set(&unit, 0, 1, mine.reference, nullptr);
  pumpAt(0);
  EXPECT_THAT(journal, ElementsAre("other: value 0 = 1"));
}

TEST_F(Sender, IsNobodyWithoutAListener) {
  set(&unit, 0, 1, nullptr, &me);
  pumpAt(0);
  EXPECT_THAT(journal, ElementsAre("mine: value 0 = 1", "other: value 0 = 1"));
}

TEST_F(Sender, HearsOfAHostsChangeBeforeItsOwnWithTheNewestValue) {
  set(&unit, 0, 1);
  set(&unit, 0, 2, mine.reference, &me);
  pumpAt(0);
  EXPECT_THAT(journal, ElementsAre("mine: value 0 = 2", "other: value 0 = 2"));
}

TEST_F(Sender, HearsOfAHostsChangeAfterItsOwn) {
  set(&unit, 0, 1, mine.reference, &me);
  set(&unit, 0, 2);
  pumpAt(0);
  EXPECT_THAT(journal, ElementsAre("mine: value 0 = 2", "other: value 0 = 2"));
}

TEST_F(Sender, HearsTheNewestValueWhenItsOwnChangeMeetsOneThatWaits) {
  set(&unit, 0, 1);
  pumpAt(0);
  journal.clear();

  set(&unit, 0, 2);
  pumpAt(10);
  set(&unit, 0, 3, mine.reference, &me);
  pumpAt(20);
  pumpAt(50);
  EXPECT_THAT(journal, ElementsAre("mine: value 0 = 3", "other: value 0 = 3"));
}

TEST_F(Sender, DoesNotSpendItsIntervalOnItsOwnChange) {
  set(&unit, 0, 1, mine.reference, &me);
  pumpAt(0);
  set(&unit, 0, 2);
  pumpAt(1);
  EXPECT_THAT(journal, ElementsAre("other: value 0 = 1", "mine: value 0 = 2"));
}

TEST_F(Sender, MayBeDisposedOfBeforeItsChangeIsDelivered) {
  set(&unit, 0, 1, mine.reference, &me);
  mine.dispose();
  pumpAt(0);
  EXPECT_THAT(journal, ElementsAre("other: value 0 = 1"));
}
