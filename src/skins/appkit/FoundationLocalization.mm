#include "skins/appkit/FoundationLocalization.h"

#include <cmath>

#include "skins/appkit/Strings.h"

namespace ui::appkit {

namespace {

/// U+202F, which newer locale data uses before percent signs and in times.
constexpr unichar kNarrowNoBreakSpace = 0x202F;

std::string withPlainSpaces(NSString* text) {
  NSString* narrow = [NSString stringWithCharacters:&kNarrowNoBreakSpace length:1];
  return utf8([text stringByReplacingOccurrencesOfString:narrow withString:@" "]);
}

}  // namespace

FoundationLocalization::FoundationLocalization()
    : oneDecimal_(Retained<NSNumberFormatter*>::adopt([[NSNumberFormatter alloc] init])) {
  NSNumberFormatter* formatter = oneDecimal_.get();
  [formatter setFormatterBehavior:NSNumberFormatterBehavior10_4];
  [formatter setNumberStyle:NSNumberFormatterDecimalStyle];
  [formatter setUsesGroupingSeparator:NO];
  [formatter setMinimumFractionDigits:1];
  [formatter setMaximumFractionDigits:1];
  [formatter setMinusSign:@"\u2212"];
}

std::string FoundationLocalization::plain(std::int64_t value) const {
  return withPlainSpaces([NSNumberFormatter
      localizedStringFromNumber:[NSNumber numberWithLongLong:value]
                    numberStyle:NSNumberFormatterNoStyle]);
}

std::string FoundationLocalization::percent(double share) const {
  return withPlainSpaces([NSNumberFormatter
      localizedStringFromNumber:[NSNumber numberWithDouble:share]
                    numberStyle:NSNumberFormatterPercentStyle]);
}

std::string FoundationLocalization::oneDecimal(double value) const {
  // A value that rounds to zero must not show a sign.
  const double shown = std::abs(value) < 0.05 ? 0.0 : value;
  return withPlainSpaces([oneDecimal_.get() stringFromNumber:[NSNumber numberWithDouble:shown]]);
}

std::string FoundationLocalization::longDateShortTime(
    std::chrono::system_clock::time_point moment) const {
  const std::chrono::duration<double> sinceEpoch = moment.time_since_epoch();
  NSDate* date = [NSDate dateWithTimeIntervalSince1970:sinceEpoch.count()];
  return withPlainSpaces([NSDateFormatter localizedStringFromDate:date
                                                        dateStyle:NSDateFormatterLongStyle
                                                        timeStyle:NSDateFormatterShortStyle]);
}

}  // namespace ui::appkit
