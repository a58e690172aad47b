#pragma once

#import <Foundation/Foundation.h>

#include "skins/appkit/Retained.h"
#include "ui/Localization.h"

namespace ui::appkit {

/// Foundation's formatters, in the user's locale.
class FoundationLocalization final : public Localization {
 public:
  FoundationLocalization();

  std::string plain(std::int64_t value) const override;
  std::string percent(double share) const override;
  std::string oneDecimal(double value) const override;
  std::string longDateShortTime(std::chrono::system_clock::time_point moment) const override;

 private:
  Retained<NSNumberFormatter*> oneDecimal_;
};

}  // namespace ui::appkit
