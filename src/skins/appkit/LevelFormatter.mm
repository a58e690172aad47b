#include "skins/appkit/LevelFormatter.h"

#include "skins/appkit/Strings.h"
#include "ui/Log.h"

@implementation Velk_LevelFormatter

- (void)setLevelText:(const ui::appkit::LevelText*)levelText {
  _levelText = levelText;
}

- (NSString*)stringForObjectValue:(id)object {
  if (_levelText == nullptr || ![object respondsToSelector:@selector(doubleValue)]) {
    return [object description];
  }
  const ui::appkit::LevelText& levelText = *_levelText;
  NSString* text = [object description];
  ui::runGuarded([&] { text = ui::appkit::nsString(levelText.text([object doubleValue])); });
  return text;
}

- (BOOL)getObjectValue:(id*)object forString:(NSString*)string errorDescription:(NSString**)error {
  *object = [NSNumber numberWithDouble:[string doubleValue]];
  return YES;
}

@end
