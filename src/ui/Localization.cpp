#include "ui/Localization.h"

#include <unicode/datefmt.h>
#include <unicode/dcfmtsym.h>
#include <unicode/locid.h>
#include <unicode/numberformatter.h>
#include <unicode/timezone.h>
#include <unicode/unistr.h>

#include <cstdlib>
#include <initializer_list>
#include <stdexcept>
#include <string_view>

namespace ui {

namespace {

void check(UErrorCode status, const char* what) {
  if (U_FAILURE(status)) {
    throw std::runtime_error(std::string(what) + ": " + u_errorName(status));
  }
}

std::string toUtf8(icu::UnicodeString text) {
  text.findAndReplace(icu::UnicodeString(u'\u202F'), icu::UnicodeString(u' '));
  std::string utf8;
  text.toUTF8String(utf8);
  return utf8;
}

/// The first of the environment variables that is set and not empty.
std::string fromEnvironment(std::initializer_list<const char*> variables) {
  for (const char* variable : variables) {
    const char* value = std::getenv(variable);
    if (value != nullptr && *value != '\0') {
      return value;
    }
  }
  return {};
}

icu::Locale icuLocale(const std::string& name) {
  // The C locale has no language; its messages are English.
  const std::string_view language = std::string_view(name).substr(0, name.find_first_of(".@"));
  if (language.empty() || language == "C" || language == "POSIX") {
    return icu::Locale::getUS();
  }
  return icu::Locale::createCanonical(name.c_str());
}

/// The locale's symbols with U+2212 as the minus sign; direction marks around it stay.
icu::DecimalFormatSymbols symbolsWithTrueMinus(const icu::Locale& locale) {
  UErrorCode status = U_ZERO_ERROR;
  icu::DecimalFormatSymbols symbols(locale, status);
  check(status, "no number symbols");
  icu::UnicodeString sign = symbols.getConstSymbol(icu::DecimalFormatSymbols::kMinusSignSymbol);
  sign.findAndReplace(icu::UnicodeString(u'-'), icu::UnicodeString(u'\u2212'));
  symbols.setSymbol(icu::DecimalFormatSymbols::kMinusSignSymbol, sign);
  return symbols;
}

class IcuLocalization final : public Localization {
 public:
  IcuLocalization(const icu::Locale& numbers, const icu::Locale& dates)
      : plain_(icu::number::NumberFormatter::withLocale(numbers).grouping(UNUM_GROUPING_OFF)),
        percent_(icu::number::NumberFormatter::withLocale(numbers)
                     .unit(icu::NoUnit::percent())
                     .scale(icu::number::Scale::powerOfTen(2))
                     .precision(icu::number::Precision::integer())),
        oneDecimal_(icu::number::NumberFormatter::withLocale(numbers)
                        .symbols(symbolsWithTrueMinus(numbers))
                        .grouping(UNUM_GROUPING_OFF)
                        .precision(icu::number::Precision::fixedFraction(1))
                        // No sign for what rounds to zero.
                        .sign(UNUM_SIGN_NEGATIVE)),
        date_(icu::DateFormat::createDateTimeInstance(icu::DateFormat::kLong,
                                                      icu::DateFormat::kShort, dates)) {
    if (!date_) {
      throw std::runtime_error("no date format for the locale");
    }
  }

  std::string plain(std::int64_t value) const override {
    UErrorCode status = U_ZERO_ERROR;
    const auto number = plain_.formatInt(value, status);
    return toText(number, status);
  }

  std::string percent(double share) const override {
    UErrorCode status = U_ZERO_ERROR;
    const auto number = percent_.formatDouble(share, status);
    return toText(number, status);
  }

  std::string oneDecimal(double value) const override {
    UErrorCode status = U_ZERO_ERROR;
    const auto number = oneDecimal_.formatDouble(value, status);
    return toText(number, status);
  }

  std::string longDateShortTime(std::chrono::system_clock::time_point moment) const override {
    const std::chrono::duration<double, std::milli> sinceEpoch = moment.time_since_epoch();
    // Asked each time: a computer may change its time zone while the view is open.
    const std::unique_ptr<icu::DateFormat> date(date_->clone());
    date->adoptTimeZone(icu::TimeZone::detectHostTimeZone());
    icu::UnicodeString text;
    date->format(sinceEpoch.count(), text);
    return toUtf8(text);
  }

 private:
  static std::string toText(const icu::number::FormattedNumber& number, UErrorCode status) {
    const icu::UnicodeString text = number.toString(status);
    check(status, "a number cannot be written");
    return toUtf8(text);
  }

  icu::number::LocalizedNumberFormatter plain_;
  icu::number::LocalizedNumberFormatter percent_;
  icu::number::LocalizedNumberFormatter oneDecimal_;
  std::unique_ptr<icu::DateFormat> date_;
};

}  // namespace

std::unique_ptr<Localization> makeLocalization(const std::string& locale) {
  const std::string numbers =
      locale.empty() ? fromEnvironment({"LC_ALL", "LC_NUMERIC", "LANG"}) : locale;
  const std::string dates =
      locale.empty() ? fromEnvironment({"LC_ALL", "LC_TIME", "LANG"}) : locale;
  return std::make_unique<IcuLocalization>(icuLocale(numbers), icuLocale(dates));
}

}  // namespace ui
