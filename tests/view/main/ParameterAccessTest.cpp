#include <limits>

#include "view/fakes/ViewTest.h"

namespace {

using fakes::QuietAssertions;
using fakes::UnitCall;
using testing::ElementsAre;
using testing::IsEmpty;

class ParameterAccess : public fakes::ViewTest {
 protected:
  void bindWith(const fakes::FakeConverter::Setting& setting) {
    unit.setSetting(setting);
    bind();
  }
};

TEST_F(ParameterAccess, ReadsEachParameter) {
  bindWith({1, 0, 7});
  EXPECT_EQ(view().getFormat(), 1.0F);
  EXPECT_EQ(view().getStrategy(), 0.0F);
  EXPECT_EQ(view().getRate(), 7.0F);
  EXPECT_THAT(record.calls.lines(), ElementsAre("unit.getParameter 0", "unit.getParameter 1",
                                                "unit.getParameter 1", "unit.getParameter 2"));
}

TEST_F(ParameterAccess, WritesEachParameterOnce) {
  bindWith({0, 0, 7});
  view().setFormat(2);
  view().setStrategy(1);
  view().setRate(3);
  EXPECT_THAT(writes(), ElementsAre("unit.setParameter 0 = 2", "unit.setParameter 1 = 1",
                                    "unit.setParameter 2 = 3"));
}

TEST_F(ParameterAccess, PassesValuesThroughUnchanged) {
  bindWith({0, 0, 7});
  for (const float value : {-3.5F, 1e30F, std::numeric_limits<float>::infinity()}) {
    view().setParameterValue(velk::kConverterParam_RateQuality, value);
    EXPECT_EQ(view().getParameterValue(velk::kConverterParam_RateQuality), value);
  }
}

TEST_F(ParameterAccess, RefusesTheRateWhileTheStrategyIsVBR) {
  bindWith({0, 2, 90});
  EXPECT_EQ(view().getRate(), 0.0F);
  view().setRate(5);
  EXPECT_THAT(record.calls.lines(),
              ElementsAre("unit.getParameter 1", "log: GetRate() not valid when strategy is VBR",
                          "unit.getParameter 1", "log: SetRate() not valid when strategy is VBR"));
  EXPECT_EQ(unit.parameters[2], 90.0F);
}

TEST_F(ParameterAccess, RefusesTheQualityWhileTheStrategyIsNotVBR) {
  bindWith({0, 0, 9});
  EXPECT_EQ(view().getQuality(), 0.0F);
  view().setQuality(50);
  EXPECT_THAT(
      record.calls.lines(),
      ElementsAre("unit.getParameter 1", "log: GetQuality() only valid when strategy is VBR",
                  "unit.getParameter 1", "log: SetQuality() only valid when strategy is VBR"));
  EXPECT_EQ(unit.parameters[2], 9.0F);
}

TEST_F(ParameterAccess, ReadsAndWritesTheQualityForVBR) {
  bindWith({0, 2, 90});
  EXPECT_EQ(view().getQuality(), 90.0F);
  view().setQuality(64);
  EXPECT_EQ(unit.parameters[2], 64.0F);
  EXPECT_THAT(record.log.lines(), IsEmpty());
}

TEST_F(ParameterAccess, TellsVBRByExactlyTwo) {
  bindWith({0, 2.5F, 9});
  EXPECT_EQ(view().getRate(), 9.0F);
  EXPECT_EQ(view().getQuality(), 0.0F);
}

TEST_F(ParameterAccess, AFailedWriteIsAnAssertionFailure) {
  bindWith({0, 0, 9});
  QuietAssertions assertions;
  unit.failOnce(UnitCall::SetParameter, 1, -10878);
  view().setStrategy(1);
  ASSERT_EQ(assertions.failures.size(), 1U);
  const ui::Assertion& failure = assertions.failures.front();
  EXPECT_EQ(failure.operation, "setParameterValue:value:");
  EXPECT_EQ(failure.object, static_cast<const void*>(&view()));
  EXPECT_EQ(failure.file, "AACConverter/AUAACConverterCustomView");
  EXPECT_EQ(failure.line, 84);
  EXPECT_EQ(failure.description, "[AUAACConverterCustomView param 1 changed:] AUParameterSet()");
}

TEST_F(ParameterAccess, AFailedReadIsAnAssertionFailure) {
  bindWith({0, 0, 9});
  QuietAssertions assertions;
  unit.failOnce(UnitCall::GetParameter, 2, -10878);
  EXPECT_EQ(view().getParameterValue(2), 0.0F);
  ASSERT_EQ(assertions.failures.size(), 1U);
  const ui::Assertion& failure = assertions.failures.front();
  EXPECT_EQ(failure.operation, "getParameterValue:");
  EXPECT_EQ(failure.object, static_cast<const void*>(&view()));
  EXPECT_EQ(failure.file, "AACConverter/AUAACConverterCustomView");
  EXPECT_EQ(failure.line, 90);
  EXPECT_EQ(failure.description, "[AUAACConverterCustomView parameterValue] (x.1)");
}

TEST_F(ParameterAccess, NothingIsRetried) {
  bindWith({0, 0, 9});
  const QuietAssertions assertions;
  unit.failAlways(UnitCall::SetParameter, 0, -1);
  unit.failAlways(UnitCall::GetParameter, 0, -1);
  view().setFormat(1);
  view().getFormat();
  EXPECT_THAT(record.calls.lines(), ElementsAre("unit.setParameter 0 = 1", "unit.getParameter 0"));
}

TEST_F(ParameterAccess, TheDefaultAssertionHandlerLogsAndThrows) {
  bindWith({0, 0, 9});
  unit.failOnce(UnitCall::SetParameter, 0, -1);
  EXPECT_THROW(view().setFormat(1), ui::AssertionFailure);
  ASSERT_EQ(record.log.lines().size(), 1U);
  EXPECT_THAT(record.log.lines().front(),
              testing::HasSubstr("[AUAACConverterCustomView param 0 changed:] AUParameterSet()"));
}

TEST_F(ParameterAccess, NamesAParameterBeyondTheUnitsOwn) {
  bindWith({0, 0, 9});
  QuietAssertions assertions;
  view().setParameterValue(0xFFFFFFFFU, 1);
  ASSERT_EQ(assertions.failures.size(), 1U);
  EXPECT_EQ(assertions.failures.front().description,
            "[AUAACConverterCustomView param -1 changed:] AUParameterSet()");
}

}  // namespace
