#include <dlfcn.h>
#include <gtest/gtest.h>

#include <limits>
#include <memory>

#include "ui/AssertionHandler.h"
#include "ui/Controls.h"
#include "ui/ForeignSkin.h"
#include "ui/InterfaceFile.h"
#include "ui/NotificationCenter.h"
#include "ui/PopUpButton.h"
#include "ui/Sheets.h"
#include "ui/StringsTable.h"

namespace {

class LoadedSkin : public testing::Test {
 public:
  ~LoadedSkin() override {
    if (library != nullptr) {
      dlclose(library);
    }
  }

 protected:
  void SetUp() override { ASSERT_NE(library, nullptr) << dlerror(); }

  template <class Function>
  Function find(const char* symbol) const {
    void* const address = dlsym(library, symbol);
    EXPECT_NE(address, nullptr) << symbol;
    return reinterpret_cast<Function>(address);
  }
  std::unique_ptr<ui::Object> make(const char* symbol) const {
    return std::unique_ptr<ui::Object>(find<MakeObject>(symbol)());
  }

  void* const library = dlopen(VELK_FOREIGN_SKIN, RTLD_NOW | RTLD_LOCAL);
};

TEST_F(LoadedSkin, MakesControlsThatCanBeToldApart) {
  const auto button = make("makeForeignButton");
  EXPECT_NE(dynamic_cast<ui::Button*>(button.get()), nullptr);
  EXPECT_NE(dynamic_cast<ui::View*>(button.get()), nullptr);
  EXPECT_EQ(dynamic_cast<ui::Window*>(button.get()), nullptr);
  EXPECT_EQ(dynamic_cast<ui::MenuItem*>(button.get()), nullptr);
  EXPECT_EQ(dynamic_cast<ui::Button&>(*button).tag(), 1000);
}

TEST_F(LoadedSkin, MakesWindowsThatCanBeToldApart) {
  const auto sheet = make("makeForeignSheet");
  EXPECT_NE(dynamic_cast<ui::Window*>(sheet.get()), nullptr);
  EXPECT_NE(dynamic_cast<ui::Sheet*>(sheet.get()), nullptr);
  EXPECT_EQ(dynamic_cast<ui::View*>(sheet.get()), nullptr);
}

TEST_F(LoadedSkin, ThrowsExceptionsThatItsHostCatchesByTheirTypes) {
  EXPECT_THROW(find<ThrowSomething>("throwForeignAssertion")(), ui::AssertionFailure);
  EXPECT_THROW(find<ThrowSomething>("throwForeignInterfaceError")(), ui::InterfaceError);
  try {
    find<ThrowSomething>("throwForeignTableError")();
    FAIL() << "no exception";
  } catch (const ui::StringsTableError& error) {
    EXPECT_EQ(error.line(), 7U);
    EXPECT_STREQ(error.what(), "line 7: a semicolon is missing");
  }
}

TEST_F(LoadedSkin, MeetsItsHostInOneNotificationCentre) {
  EXPECT_EQ(find<DefaultCenter>("foreignDefaultCenter")(),
            &ui::NotificationCenter::defaultCenter());
}

constexpr float kNan = std::numeric_limits<float>::quiet_NaN();

TEST(Dictionary, EqualsOneWithTheSameEntries) {
  const ui::Dictionary setting{{"Format", 0.0F}, {"Strategy", 1.0F}, {"RateQuality", 10.0F}};
  EXPECT_TRUE(
      ui::isEqual(setting, {{"RateQuality", 10.0F}, {"Strategy", 1.0F}, {"Format", -0.0F}}));
  EXPECT_TRUE(ui::isEqual({}, {}));
}

TEST(Dictionary, DiffersByAnyNameValueOrEntry) {
  const ui::Dictionary setting{{"Format", 0.0F}, {"Strategy", 1.0F}};
  EXPECT_FALSE(ui::isEqual(setting, {{"Format", 0.0F}, {"Strategy", 1.5F}}));
  EXPECT_FALSE(ui::isEqual(setting, {{"Format", 0.0F}, {"Quality", 1.0F}}));
  EXPECT_FALSE(ui::isEqual(setting, {{"Format", 0.0F}}));
  EXPECT_FALSE(ui::isEqual({}, setting));
}

TEST(Dictionary, EqualsItselfEvenWithoutANumber) {
  EXPECT_TRUE(ui::isEqual({{"RateQuality", kNan}}, {{"RateQuality", kNan}}));
  EXPECT_FALSE(ui::isEqual({{"RateQuality", kNan}}, {{"RateQuality", 0.0F}}));
}

}  // namespace
