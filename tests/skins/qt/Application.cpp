#include <gtest/gtest.h>

#include <QApplication>
#include <memory>

/// Provides an off-screen application object for all tests of a program.
namespace {

class Application final : public testing::Environment {
 public:
  void SetUp() override {
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM")) {
      qputenv("QT_QPA_PLATFORM", "offscreen");
    }
    application_ = std::make_unique<QApplication>(count_, arguments_);
  }
  void TearDown() override { application_.reset(); }

 private:
  int count_ = 1;
  char name_[8] = "qt_test";
  char* arguments_[2] = {name_, nullptr};
  std::unique_ptr<QApplication> application_;
};

const testing::Environment* const kApplication = testing::AddGlobalTestEnvironment(new Application);

}  // namespace
