#pragma once

#import <Foundation/Foundation.h>

#include <string>

namespace ui::appkit {

/// How a level is written.
class LevelText {
 public:
  virtual ~LevelText() = default;
  virtual std::string text(double level) const = 0;
};

}  // namespace ui::appkit

/// Shows a field's number as a level.
@interface Velk_LevelFormatter : NSFormatter {
  const ui::appkit::LevelText* _levelText;
}
/// Not owned; without one the plain number is shown.
- (void)setLevelText:(const ui::appkit::LevelText*)levelText;
@end
