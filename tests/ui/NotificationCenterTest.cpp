#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <memory>
#include <stdexcept>
#include <string>
#include <vector>

#include "ui/NotificationCenter.h"

namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class NotificationCenterTest : public testing::Test {
 protected:
  /// Registers an observer that records its own name.
  void observe(const void* observer, std::string_view name, const void* object,
               const std::string& called) {
    center.addObserver(observer, name, object,
                       [this, called](const ui::Notification&) { calls.push_back(called); });
  }

  ui::NotificationCenter center;
  std::vector<std::string> calls;
  // Identities.
  const int one = 1;
  const int two = 2;
  const int view = 3;
  const int otherView = 4;
};

TEST_F(NotificationCenterTest, DeliversToEveryObserverInTheOrderOfRegistration) {
  observe(&two, "reset", &view, "second observer");
  observe(&one, "reset", &view, "first observer");
  observe(&two, "reset", &view, "second observer again");
  center.post("reset", &view);
  EXPECT_THAT(calls, ElementsAre("second observer", "first observer", "second observer again"));
}

TEST_F(NotificationCenterTest, TellsNameAndObject) {
  std::string name;
  const void* object = nullptr;
  center.addObserver(&one, "reset", nullptr, [&](const ui::Notification& notification) {
    name = notification.name;
    object = notification.object;
  });
  center.post("reset", &view);
  EXPECT_EQ(name, "reset");
  EXPECT_EQ(object, &view);
}

TEST_F(NotificationCenterTest, DeliversOnlyTheObservedNameAndObject) {
  observe(&one, "reset", &view, "view");
  center.post("source", &view);
  center.post("reset", &otherView);
  center.post("reset", nullptr);
  EXPECT_THAT(calls, IsEmpty());
}

TEST_F(NotificationCenterTest, DeliversFromEveryObjectWhenNoneIsNamed) {
  observe(&one, "reset", nullptr, "any");
  center.post("reset", &view);
  center.post("reset", &otherView);
  center.post("reset", nullptr);
  EXPECT_THAT(calls, ElementsAre("any", "any", "any"));
}

TEST_F(NotificationCenterTest, KeepsItsOwnCopyOfTheName) {
  std::string name = "reset";
  observe(&one, name, &view, "reset");
  name = "other";
  center.post("reset", &view);
  EXPECT_THAT(calls, ElementsAre("reset"));
}

TEST_F(NotificationCenterTest, RemovesEveryRegistrationOfAnObserverAndNoOther) {
  observe(&one, "reset", &view, "one");
  observe(&two, "reset", &view, "two");
  observe(&one, "source", nullptr, "one");
  center.removeObserver(&one);
  center.removeObserver(&one);
  center.post("reset", &view);
  center.post("source", &view);
  EXPECT_THAT(calls, ElementsAre("two"));
}

TEST_F(NotificationCenterTest, DoesNotCallAnObserverThatIsRemovedDuringTheDelivery) {
  center.addObserver(&one, "reset", &view, [this](const ui::Notification&) {
    calls.emplace_back("one");
    center.removeObserver(&two);
  });
  observe(&two, "reset", &view, "two");
  center.post("reset", &view);
  center.post("reset", &view);
  EXPECT_THAT(calls, ElementsAre("one", "one"));
}

TEST_F(NotificationCenterTest, LetsAnObserverRemoveItselfAndGoOnWithWhatItHolds) {
  const auto held = std::make_shared<std::string>("held");
  center.addObserver(&one, "reset", &view, [this, held](const ui::Notification&) {
    center.removeObserver(&one);
    calls.push_back(*held);
  });
  observe(&two, "reset", &view, "two");
  center.post("reset", &view);
  EXPECT_THAT(calls, ElementsAre("held", "two"));
  EXPECT_EQ(held.use_count(), 1) << "what the observer held is released";
}

TEST_F(NotificationCenterTest, CallsAnObserverThatIsAddedDuringADeliveryOnlyByTheNextPost) {
  center.addObserver(&one, "reset", &view, [this](const ui::Notification&) {
    calls.emplace_back("one");
    if (calls.size() == 1) {
      observe(&two, "reset", &view, "two");
    }
  });
  center.post("reset", &view);
  EXPECT_THAT(calls, ElementsAre("one"));
  center.post("reset", &view);
  EXPECT_THAT(calls, ElementsAre("one", "one", "two"));
}

TEST_F(NotificationCenterTest, CallsAnObserverThatIsRemovedAndAddedAgainOnlyByTheNextPost) {
  center.addObserver(&one, "reset", &view, [this](const ui::Notification&) {
    center.removeObserver(&two);
    observe(&two, "reset", &view, "two again");
  });
  observe(&two, "reset", &view, "two");
  center.post("reset", &view);
  EXPECT_THAT(calls, IsEmpty());
}

TEST_F(NotificationCenterTest, DeliversAPostWithinADeliveryAtOnce) {
  center.addObserver(&one, "reset", &view, [this](const ui::Notification&) {
    calls.emplace_back("before");
    center.post("source", &view);
    calls.emplace_back("after");
  });
  observe(&two, "source", &view, "source");
  observe(&two, "reset", &view, "two");
  center.post("reset", &view);
  EXPECT_THAT(calls, ElementsAre("before", "source", "after", "two"));
}

TEST_F(NotificationCenterTest, SkipsAnObserverThatANestedDeliveryRemoved) {
  center.addObserver(&one, "reset", &view,
                     [this](const ui::Notification&) { center.post("source", &view); });
  center.addObserver(&one, "source", &view,
                     [this](const ui::Notification&) { center.removeObserver(&two); });
  observe(&two, "reset", &view, "two");
  center.post("reset", &view);
  EXPECT_THAT(calls, IsEmpty());
}

TEST_F(NotificationCenterTest, PassesAnExceptionOnAndStaysUsable) {
  bool isThrowing = true;
  observe(&one, "reset", &view, "one");
  center.addObserver(&one, "reset", &view, [&isThrowing](const ui::Notification&) {
    if (isThrowing) {
      throw std::runtime_error("no such item");
    }
  });
  observe(&two, "reset", &view, "two");
  EXPECT_THROW(center.post("reset", &view), std::runtime_error);
  EXPECT_THAT(calls, ElementsAre("one"));
  isThrowing = false;
  center.post("reset", &view);
  EXPECT_THAT(calls, ElementsAre("one", "one", "two"));
}

TEST_F(NotificationCenterTest, CanBeUsedByWhatARemovedObserverHeld) {
  struct Guest {
    ui::NotificationCenter& center;
    const void* observer;
    Guest(ui::NotificationCenter& guestOf, const void* guest) : center(guestOf), observer(guest) {}
    Guest(const Guest&) = delete;
    Guest& operator=(const Guest&) = delete;
    ~Guest() { center.removeObserver(observer); }
  };
  auto guest = std::make_shared<Guest>(center, &two);
  center.addObserver(&one, "reset", &view, [guest](const ui::Notification&) {});
  guest.reset();
  observe(&two, "reset", &view, "two");
  center.post("reset", &view);
  center.removeObserver(&one);
  center.post("reset", &view);
  EXPECT_THAT(calls, ElementsAre("two"));
}

TEST_F(NotificationCenterTest, HasOneDefaultForTheWholeProcess) {
  EXPECT_EQ(&ui::NotificationCenter::defaultCenter(), &ui::NotificationCenter::defaultCenter());
  EXPECT_NE(&ui::NotificationCenter::defaultCenter(), &center);
}

}  // namespace
