#include <gtest/gtest.h>

#include <chrono>
#include <cstdlib>
#include <ctime>
#include <limits>
#include <optional>
#include <string>

#include "ui/Localization.h"

namespace {

constexpr double kNan = std::numeric_limits<double>::quiet_NaN();
constexpr double kInfinity = std::numeric_limits<double>::infinity();

/// Sets an environment variable for one test.
class Environment {
 public:
  Environment(const char* name, const char* value) : name_(name) {
    if (const char* earlier = std::getenv(name)) {
      earlier_ = earlier;
    }
    set(value);
  }
  Environment(const Environment&) = delete;
  Environment& operator=(const Environment&) = delete;
  ~Environment() { set(earlier_ ? earlier_->c_str() : nullptr); }

 private:
  void set(const char* value) {
    if (value != nullptr) {
      setenv(name_, value, 1);
    } else {
      unsetenv(name_);
    }
    tzset();
  }
  const char* name_;
  std::optional<std::string> earlier_;
};

std::string plain(const char* locale, std::int64_t value) {
  return ui::makeLocalization(locale)->plain(value);
}
std::string percent(const char* locale, double share) {
  return ui::makeLocalization(locale)->percent(share);
}
std::string oneDecimal(const char* locale, double value) {
  return ui::makeLocalization(locale)->oneDecimal(value);
}
/// 14 November 2023, 22:13:20 UTC.
std::string date(const char* locale) {
  return ui::makeLocalization(locale)->longDateShortTime(
      std::chrono::system_clock::time_point(std::chrono::seconds(1700000000)));
}

TEST(Localization, WritesPlainNumbersWithoutGrouping) {
  for (const char* locale : {"en_US", "de_DE", "fr_FR"}) {
    EXPECT_EQ(plain(locale, 0), "0") << locale;
    EXPECT_EQ(plain(locale, 1234567), "1234567") << locale;
  }
  EXPECT_EQ(plain("en_US", std::numeric_limits<std::int64_t>::max()), "9223372036854775807");
  EXPECT_EQ(plain("en_US", -60), "-60");
}

TEST(Localization, WritesPlainNumbersInTheDigitsOfTheLocale) {
  EXPECT_EQ(plain("ar_EG", 1234), "١٢٣٤");
  EXPECT_EQ(plain("fa_IR", 1234), "۱۲۳۴");
}

TEST(Localization, WritesWholePercentagesInEnglish) {
  EXPECT_EQ(percent("en_US", 0), "0%");
  EXPECT_EQ(percent("en_US", 0.7), "70%");
  EXPECT_EQ(percent("en_US", 0.85), "85%");
  EXPECT_EQ(percent("en_US", 1.0), "100%");
  EXPECT_EQ(percent("en_US", 2.0 / 3.0), "67%");
}

TEST(Localization, PutsANoBreakSpaceBeforeThePercentSignInGermanAndFrench) {
  for (const char* locale : {"de_DE", "fr_FR"}) {
    EXPECT_EQ(percent(locale, 0), "0\u00A0%") << locale;
    EXPECT_EQ(percent(locale, 0.7), "70\u00A0%") << locale;
    EXPECT_EQ(percent(locale, 0.85), "85\u00A0%") << locale;
    EXPECT_EQ(percent(locale, 1.0), "100\u00A0%") << locale;
  }
}

TEST(Localization, TakesSharesOfSinglePrecision) {
  EXPECT_EQ(percent("en_US", static_cast<double>(14.0F / 20.0F)), "70%");
  EXPECT_EQ(percent("en_US", static_cast<double>(17.0F / 20.0F)), "85%");
}

TEST(Localization, SaysThatAShareIsNoNumber) {
  EXPECT_EQ(percent("en_US", kNan), "NaN%");
  EXPECT_EQ(percent("de_DE", kNan), "NaN\u00A0%");
}

TEST(Localization, WritesLevelsWithOneDecimalAndATrueMinusSign) {
  EXPECT_EQ(oneDecimal("en_US", -0.1), "\u22120.1");
  EXPECT_EQ(oneDecimal("en_US", -60), "\u221260.0");
  EXPECT_EQ(oneDecimal("de_DE", -12.34), "\u221212,3");
  EXPECT_EQ(oneDecimal("fr_FR", 0.4), "0,4");
  EXPECT_EQ(oneDecimal("en_US", 1234.56), "1234.6");
}

TEST(Localization, WritesALevelThatRoundsToZeroWithoutSign) {
  EXPECT_EQ(oneDecimal("en_US", -0.04), "0.0");
  EXPECT_EQ(oneDecimal("en_US", -0.0), "0.0");
  EXPECT_EQ(oneDecimal("en_US", -0.06), "\u22120.1");
}

TEST(Localization, WritesLevelsThatAreNotFinite) {
  EXPECT_EQ(oneDecimal("en_US", kNan), "NaN");
  EXPECT_EQ(oneDecimal("en_US", -kInfinity), "\u2212∞");
}

TEST(Localization, KeepsMarksOfDirectionAroundTheMinusSign) {
  EXPECT_EQ(oneDecimal("ar_EG", -0.1), "\u061C\u2212٠٫١");
}

TEST(Localization, WritesTheLongDateWithTheShortTime) {
  const Environment zone("TZ", "UTC");
  EXPECT_EQ(date("en_US"), "November 14, 2023 at 10:13 PM");
  EXPECT_EQ(date("de_DE"), "14. November 2023 um 22:13");
  EXPECT_EQ(date("fr_FR"), "14 novembre 2023 à 22:13");
  EXPECT_EQ(date("ar_EG"), "١٤ نوفمبر ٢٠٢٣ في ١٠:١٣ م");
}

TEST(Localization, FollowsTheLocalTimeZone) {
  const auto localization = ui::makeLocalization("de_DE");
  const std::chrono::system_clock::time_point moment(std::chrono::seconds(1700000000));
  {
    const Environment zone("TZ", "Europe/Berlin");
    EXPECT_EQ(localization->longDateShortTime(moment), "14. November 2023 um 23:13");
  }
  const Environment zone("TZ", "Asia/Tokyo");
  EXPECT_EQ(localization->longDateShortTime(moment), "15. November 2023 um 07:13");
}

TEST(Localization, PutsAPlainSpaceForTheNarrowNoBreakSpaceOfATime) {
  const Environment zone("TZ", "UTC");
  const std::string text = date("en_US");
  EXPECT_EQ(text.substr(text.size() - 8), "10:13 PM");
}

TEST(Localization, NeverWritesANarrowNoBreakSpace) {
  const Environment zone("TZ", "UTC");
  for (const char* locale : {"en_US", "en_AU", "de_DE", "fr_FR", "fr_TN", "ru_RU"}) {
    const auto localization = ui::makeLocalization(locale);
    const std::string everything = localization->plain(1234567) + localization->percent(12.5) +
                                   localization->oneDecimal(-12345.6) + date(locale);
    EXPECT_EQ(everything.find("\u202F"), std::string::npos) << locale << ": " << everything;
  }
}

class UsersLocale : public testing::Test {
 protected:
  Environment all{"LC_ALL", nullptr};
  Environment numeric{"LC_NUMERIC", nullptr};
  Environment time{"LC_TIME", nullptr};
  Environment lang{"LANG", nullptr};
  Environment zone{"TZ", "UTC"};
};

TEST_F(UsersLocale, IsAmericanEnglishWhenNothingIsSet) {
  EXPECT_EQ(oneDecimal("", 0.5), "0.5");
  EXPECT_EQ(date(""), "November 14, 2023 at 10:13 PM");
}

TEST_F(UsersLocale, IsAmericanEnglishForThePlainLocale) {
  for (const char* name : {"C", "POSIX", "C.UTF-8"}) {
    const Environment set("LC_ALL", name);
    EXPECT_EQ(date(""), "November 14, 2023 at 10:13 PM") << name;
  }
}

TEST_F(UsersLocale, ComesFromTheLanguage) {
  const Environment set("LANG", "de_DE.UTF-8");
  EXPECT_EQ(oneDecimal("", 0.5), "0,5");
  EXPECT_EQ(date(""), "14. November 2023 um 22:13");
}

TEST_F(UsersLocale, MayDifferForNumbersAndDates) {
  const Environment language("LANG", "en_US.UTF-8");
  const Environment numbers("LC_NUMERIC", "de_DE@euro");
  const Environment dates("LC_TIME", "fr_FR.UTF-8");
  EXPECT_EQ(oneDecimal("", 0.5), "0,5");
  EXPECT_EQ(date(""), "14 novembre 2023 à 22:13");
}

TEST_F(UsersLocale, IsTheOneForAllWhenThatIsSet) {
  const Environment everything("LC_ALL", "fr_FR.UTF-8");
  const Environment numbers("LC_NUMERIC", "en_US.UTF-8");
  const Environment language("LANG", "de_DE.UTF-8");
  EXPECT_EQ(oneDecimal("", 0.5), "0,5");
  EXPECT_EQ(date(""), "14 novembre 2023 à 22:13");
}

TEST_F(UsersLocale, SkipsAnEmptyVariable) {
  const Environment everything("LC_ALL", "");
  const Environment language("LANG", "de_DE.UTF-8");
  EXPECT_EQ(oneDecimal("", 0.5), "0,5");
}

}  // namespace
