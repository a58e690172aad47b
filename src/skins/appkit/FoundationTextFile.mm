#include "skins/appkit/FoundationTextFile.h"

#include "skins/appkit/Exceptions.h"
#include "skins/appkit/Strings.h"

namespace ui::appkit {

bool writeMacRoman(const std::filesystem::path& file, std::string_view utf8) {
  NSString* text = nsString(utf8);
  // Checked first: Foundation might write a lossy text.
  if (([text length] == 0 && !utf8.empty()) ||
      ![text canBeConvertedToEncoding:NSMacOSRomanStringEncoding]) {
    return false;
  }
  NSURL* url = [NSURL fileURLWithPath:nsString(file.string())];
  BOOL written = NO;
  NSException* exception = catchException([&] {
    written = [text writeToURL:url
                    atomically:YES
                      encoding:NSMacOSRomanStringEncoding
                         error:nullptr];
  });
  return exception == nil && written == YES;
}

}  // namespace ui::appkit
