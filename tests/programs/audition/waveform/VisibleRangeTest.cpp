#include <gtest/gtest.h>

#include "programs/audition/waveform/LoopGesture.h"
#include "programs/audition/waveform/VisibleRange.h"

using host::LoopRange;
using host::audition::LoopGesture;
using host::audition::LoopPart;
using host::audition::VisibleRange;

namespace {

TEST(VisibleRange, ShowsAllAtFirst) {
  const VisibleRange range(100000);
  EXPECT_TRUE(range.isAll());
  EXPECT_EQ(range.frameAt(280, 560), 50000);
  EXPECT_EQ(range.xOf(25000, 560), 140);
}

TEST(VisibleRange, ZoomsAroundAPlaceThatStays) {
  VisibleRange range(100000);
  range.zoom(0.5, 30000);
  EXPECT_EQ(range.span(), 50000);
  EXPECT_EQ(range.start(), 15000);
  EXPECT_EQ(range.xOf(30000, 560), 168);
  range.zoom(10, 30000);
  EXPECT_TRUE(range.isAll());
}

TEST(VisibleRange, ShowsNoLessThanIsOfUse) {
  VisibleRange range(100000);
  range.zoom(0, 99999);
  EXPECT_EQ(range.span(), VisibleRange::kShortest);
  EXPECT_LE(range.end(), 100000);
  VisibleRange tiny(10);
  tiny.zoom(0.5, 5);
  EXPECT_TRUE(tiny.isAll());
}

TEST(VisibleRange, StaysWithinTheFile) {
  VisibleRange range(100000);
  range.zoom(0.1, 50000);
  range.scroll(1000000);
  EXPECT_EQ(range.end(), 100000);
  range.scroll(-1000000);
  EXPECT_EQ(range.start(), 0);
  EXPECT_EQ(range.span(), 10000);
}

TEST(VisibleRange, ScrollsToAPlaceThatIsNotVisible) {
  VisibleRange range(100000);
  range.zoom(0.1, 0);
  range.follow(9000);
  EXPECT_EQ(range.start(), 0);
  range.follow(10001);
  EXPECT_EQ(range.start(), 10001);
  range.follow(99999);
  EXPECT_EQ(range.end(), 100000);
}

TEST(VisibleRange, FollowsTheLengthOfAFileThatTurnsOutShorter) {
  VisibleRange all(100000);
  all.setLength(60000);
  EXPECT_TRUE(all.isAll());
  VisibleRange range(100000);
  range.zoom(0.1, 100000);
  range.setLength(60000);
  EXPECT_EQ(range.end(), 60000);
  EXPECT_EQ(range.span(), 10000);
}

TEST(VisibleRange, CopesWithNothingToShow) {
  VisibleRange none;
  none.zoom(0.5, 0);
  none.scroll(5);
  EXPECT_EQ(none.xOf(0, 560), 0);
  EXPECT_EQ(none.span(), 0);
}

LoopGesture gesture(LoopPart part, std::int64_t at) {
  return LoopGesture(part, at, LoopRange{300, 500}, 1000);
}

TEST(LoopGesture, DrawsALoopBothWays) {
  auto drawing = gesture(LoopPart::None, 100);
  drawing.moveTo(150);
  EXPECT_EQ(drawing.loop(), (LoopRange{100, 150}));
  drawing.moveTo(20);
  EXPECT_EQ(drawing.loop(), (LoopRange{20, 100}));
  drawing.moveTo(-50);
  EXPECT_EQ(drawing.loop(), (LoopRange{0, 100}));
  drawing.moveTo(100);
  EXPECT_EQ(drawing.loop(), std::nullopt);
}

TEST(LoopGesture, MovesAnEdgeEvenBeyondTheOther) {
  auto start = gesture(LoopPart::Start, 300);
  start.moveTo(350);
  EXPECT_EQ(start.loop(), (LoopRange{350, 500}));
  start.moveTo(600);
  EXPECT_EQ(start.loop(), (LoopRange{500, 600}));
  auto end = gesture(LoopPart::End, 500);
  end.moveTo(2000);
  EXPECT_EQ(end.loop(), (LoopRange{300, 1000}));
}

TEST(LoopGesture, MovesTheWholeLoopAsFarAsTheFileGoes) {
  auto whole = gesture(LoopPart::Whole, 400);
  whole.moveTo(450);
  EXPECT_EQ(whole.loop(), (LoopRange{350, 550}));
  whole.moveTo(-5000);
  EXPECT_EQ(whole.loop(), (LoopRange{0, 200}));
  whole.moveTo(5000);
  EXPECT_EQ(whole.loop(), (LoopRange{800, 1000}));
}

TEST(LoopEdges, ReachToTheEndsOfTheFileWhereThereIsNoOtherEdge) {
  using host::audition::loopFrom;
  using host::audition::loopUpTo;
  EXPECT_EQ(loopFrom(100, std::nullopt, 1000), (LoopRange{100, 1000}));
  EXPECT_EQ(loopUpTo(100, std::nullopt), (LoopRange{0, 100}));
  EXPECT_EQ(loopFrom(100, LoopRange{300, 500}, 1000), (LoopRange{100, 500}));
  EXPECT_EQ(loopFrom(600, LoopRange{300, 500}, 1000), (LoopRange{600, 1000}));
  EXPECT_EQ(loopUpTo(200, LoopRange{300, 500}), (LoopRange{0, 200}));
  EXPECT_EQ(loopFrom(1000, std::nullopt, 1000), std::nullopt);
  EXPECT_EQ(loopUpTo(0, std::nullopt), std::nullopt);
}

}  // namespace
