#include <gtest/gtest.h>

#include "skins/appkit/Application.h"
#include "skins/appkit/MainThread.h"

int main(int argc, char** argv) {
  testing::InitGoogleTest(&argc, argv);
  const appkit_test::Application application;
  return appkit_test::runApplication([] { return RUN_ALL_TESTS(); });
}
