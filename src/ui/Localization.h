#pragma once

#include <chrono>
#include <cstdint>
#include <memory>
#include <string>

#include "ui/Export.h"

namespace ui {

/// Numbers and dates as the user's locale writes them, UTF-8. The narrow no-break space of newer
/// locale data (U+202F) is replaced by a plain space.
class UI_EXPORT Localization {
 public:
  virtual ~Localization();
  /// A whole number without grouping: "1234".
  virtual std::string plain(std::int64_t value) const = 0;
  /// A share as a whole percentage: 0.85 gives "85%" in English, "85 %" in German.
  virtual std::string percent(double share) const = 0;
  /// A level with one decimal and a true minus sign: "−0.1".
  virtual std::string oneDecimal(double value) const = 0;
  /// Long date and short time: "November 14, 2023 at 10:13 PM".
  virtual std::string longDateShortTime(std::chrono::system_clock::time_point moment) const = 0;
};

/// Formats by ICU's rules for a locale such as "de_DE". An empty name stands for the user's locale
/// in the environment: LC_ALL, else LC_NUMERIC for numbers and LC_TIME for dates, else LANG, else
/// American English.
UI_EXPORT std::unique_ptr<Localization> makeLocalization(const std::string& locale);

}  // namespace ui
