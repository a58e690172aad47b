#include <gtest/gtest.h>

#include "appkit/Application.h"
#include "appkit/MainThread.h"

int main(int argc, char** argv) {
  testing::InitGoogleTest(&argc, argv);
  const appkit_test::Application application;
  return appkit_test::runApplication([] { return RUN_ALL_TESTS(); });
}
