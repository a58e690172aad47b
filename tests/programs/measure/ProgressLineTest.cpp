#include <gmock/gmock.h>

#include "host/messages/TextWidth.h"
#include "programs/measure/ProgressLine.h"

using namespace host::measure;
using testing::HasSubstr;
using testing::Not;

namespace {

ProgressState half() {
  return {10, 5.0, 30.0, "album/mix.wav", "AAC VBRC 256", -1};
}

TEST(ProgressLine, TellsPartCountRestAndWork) {
  EXPECT_EQ(progressLine(half(), 100),
            "[##########··········]  50 %  6 of 10  0:30 left  album/mix.wav  AAC VBRC 256");
}

TEST(ProgressLine, TellsWhichReductionIsTried) {
  auto state = half();
  state.reduction = 13;
  EXPECT_THAT(progressLine(state, 100), HasSubstr("AAC VBRC 256 at -1.3 dB"));
  state.reduction = 0;
  EXPECT_THAT(progressLine(state, 100), Not(HasSubstr("dB")));
}

TEST(ProgressLine, SaysNothingOfTheRestBeforeItCanBeJudged) {
  auto state = half();
  state.seconds = 1;
  EXPECT_THAT(progressLine(state, 100), Not(HasSubstr("left")));
}

TEST(ProgressLine, FitsAnyTerminal) {
  for (std::size_t width = 0; width < 120; ++width) {
    EXPECT_LE(host::textWidth(progressLine(half(), width)), width);
  }
}

TEST(ProgressLine, CountsTheLastJobWhenAllHaveEnded) {
  auto state = half();
  state.done = 10;
  EXPECT_THAT(progressLine(state, 100), HasSubstr("100 %  10 of 10"));
}

TEST(SearchProgress, RisesAndNeverReachesTheEnd) {
  double last = 0;
  for (int encodes = 0; encodes < 20; ++encodes) {
    for (const double part : {0.0, 0.5, 1.0}) {
      const auto now = searchProgress(encodes, part);
      EXPECT_GE(now, last);
      EXPECT_LT(now, 1);
      last = now;
    }
  }
}

}  // namespace
