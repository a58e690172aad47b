#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "behaviour/Stage.h"

namespace {

using behaviour::setStage;

TEST(Binding, ShowsTheAuditionPageWithItsDetailsCollapsed) {
  const auto stage = setStage();
  EXPECT_EQ(stage->selectedTab("view.tabView"), 0);
  EXPECT_EQ(stage->height(), 195.0);
}

}  // namespace
