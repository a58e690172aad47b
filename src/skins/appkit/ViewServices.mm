#include "skins/appkit/ViewServices.h"

#include "skins/appkit/FoundationTextFile.h"
#include "ui/Captions.h"

namespace ui::appkit {

namespace {

constexpr std::string_view kLevelFormat = "%@ dB";

}  // namespace

LocalizedLevelText::LocalizedLevelText(const Bundle& bundle, const Localization& localization)
    : format_(caption(bundle, kLevelFormat)), localization_(localization) {}

std::string LocalizedLevelText::text(double level) const {
  return formatted(format_, {localization_.oneDecimal(level)});
}

ViewServices::ViewServices(NSBundle* bundle)
    : bundle_(bundle),
      sheets_(runLoop_),
      helpManager_(bundle_),
      levelText_(bundle_, localization_),
      toolkit_{runLoop_, sheets_, helpManager_, bundle_, localization_, appkit::writeMacRoman} {}

}  // namespace ui::appkit
