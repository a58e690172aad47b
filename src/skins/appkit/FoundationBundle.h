#pragma once

#import <Foundation/Foundation.h>

#include "skins/appkit/Retained.h"
#include "ui/Bundle.h"

namespace ui::appkit {

/// An NSBundle's resources, in the language that the system chooses for it.
class FoundationBundle final : public Bundle {
 public:
  explicit FoundationBundle(NSBundle* bundle);

  std::string localizedString(std::string_view key, std::string_view table) const override;
  NSBundle* native() const { return bundle_.get(); }

 private:
  Retained<NSBundle*> bundle_;
};

}  // namespace ui::appkit
