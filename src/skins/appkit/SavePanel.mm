#include "skins/appkit/SavePanel.h"

#include "skins/appkit/Strings.h"

namespace ui::appkit {

namespace {

#ifdef GNUSTEP
constexpr NSInteger kConfirmed = NSOKButton;
#else
constexpr NSInteger kConfirmed = NSModalResponseOK;
#endif

}  // namespace

std::optional<std::filesystem::path> runSavePanel(const SavePanelTexts& texts) {
  NSSavePanel* panel = [NSSavePanel savePanel];
  [panel setTitle:nsString(texts.title)];
  [panel setAllowedFileTypes:[NSArray arrayWithObject:nsString(texts.allowedFileType)]];
  [panel setNameFieldStringValue:nsString(texts.proposedName)];
  if ([panel runModal] != kConfirmed) {
    return std::nullopt;
  }
  return std::filesystem::path(utf8([[panel URL] path]));
}

}  // namespace ui::appkit
