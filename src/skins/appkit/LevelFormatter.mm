#include "skins/appkit/LevelFormatter.h"

#include "skins/appkit/Strings.h"

@implementation Velk_LevelFormatter

- (void)setLevelText:(const ui::appkit::LevelText*)levelText {
  _levelText = levelText;
}

- (NSString*)stringForObjectValue:(id)object {
  if (_levelText == nullptr || ![object respondsToSelector:@selector(doubleValue)]) {
    return [object description];
  }
  return ui::appkit::nsString(_levelText->text([object doubleValue]));
}

- (BOOL)getObjectValue:(id*)object forString:(NSString*)string errorDescription:(NSString**)error {
  *object = [NSNumber numberWithDouble:[string doubleValue]];
  return YES;
}

@end
