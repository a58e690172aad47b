#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "ui/AssertionHandler.h"
#include "ui/Log.h"

namespace {

using testing::AllOf;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

class AssertionHandlerTest : public testing::Test {
 public:
  ~AssertionHandlerTest() override {
    ui::AssertionHandler::setCurrentHandler(nullptr);
    ui::setLogSink(earlier_);
  }

 protected:
  AssertionHandlerTest()
      : earlier_(ui::setLogSink([this](std::string_view line) { lines.emplace_back(line); })) {}

  const ui::Assertion assertion{"setParameterValue:value:", this, "AACConverter/View", 84,
                                "the unit refused"};
  std::vector<std::string> lines;

 private:
  ui::LogSink earlier_;
};

class Recorder final : public ui::AssertionHandler {
 public:
  void handleFailure(const ui::Assertion& assertion) override {
    descriptions.push_back(assertion.description);
  }
  std::vector<std::string> descriptions;
};

TEST_F(AssertionHandlerTest, LogsAndThrowsByDefault) {
  try {
    ui::AssertionHandler::currentHandler().handleFailure(assertion);
    FAIL() << "no exception";
  } catch (const ui::AssertionFailure& failure) {
    EXPECT_EQ(failure.assertion().operation, assertion.operation);
    EXPECT_EQ(failure.assertion().object, this);
    EXPECT_EQ(failure.assertion().file, assertion.file);
    EXPECT_EQ(failure.assertion().line, 84);
    EXPECT_EQ(failure.assertion().description, assertion.description);
    EXPECT_THAT(lines, ElementsAre(failure.what()));
  }
}

TEST_F(AssertionHandlerTest, SaysWhatFailedWhereAndHow) {
  EXPECT_THROW(ui::AssertionHandler::currentHandler().handleFailure(assertion), std::logic_error);
  EXPECT_THAT(lines,
              ElementsAre(AllOf(HasSubstr("setParameterValue:value:"),
                                HasSubstr("AACConverter/View:84"), HasSubstr("the unit refused"))));
}

TEST_F(AssertionHandlerTest, CanBeReplaced) {
  Recorder recorder;
  ui::AssertionHandler::setCurrentHandler(&recorder);
  EXPECT_EQ(&ui::AssertionHandler::currentHandler(), &recorder);
  ui::AssertionHandler::currentHandler().handleFailure(assertion);
  EXPECT_THAT(recorder.descriptions, ElementsAre("the unit refused"));
  EXPECT_THAT(lines, IsEmpty());
}

TEST_F(AssertionHandlerTest, ComesBackWhenItsReplacementGoes) {
  Recorder recorder;
  ui::AssertionHandler::setCurrentHandler(&recorder);
  ui::AssertionHandler::setCurrentHandler(nullptr);
  EXPECT_THROW(ui::AssertionHandler::currentHandler().handleFailure(assertion),
               ui::AssertionFailure);
  EXPECT_THAT(recorder.descriptions, IsEmpty());
}

}  // namespace
